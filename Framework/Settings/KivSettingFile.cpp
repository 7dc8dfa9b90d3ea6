#include "Settings/KivSettingFile.h"

#include "Base/KivDiagnostic.h"
#include "Disk/KivFileContent.h"
#include "Settings/KivSettingTable.h"

#include <algorithm>
#include <bitset>
#include <unordered_map>
#include <utility>

namespace {

// A file of noise has millions of damaged lines; nobody reads more than this.
constexpr std::size_t kMostReports = 20;

void Tell(const KivUnicodeString& path, const KivSettingLine& line, const std::string& text)
{
    KivReport(
        {KivDiagnostic::Severity::Warning, KivUnicodeString(text), path, line.number, KivString(line.key)});
}

// Finds a key's line before. On its way at every start: one look-up a line, no allocation but the first.
class EarlierLines {
public:
    explicit EarlierLines(const std::vector<KivSettingLine>& lines) : _lines(lines)
    {
        std::size_t slots = 64;
        while (slots < 2 * lines.size()) slots *= 2;
        _slots.resize(slots);
    }

    // The number of the key's line before, or 0; this one is the next one's line before.
    int Exchange(const KivSettingLine& line)
    {
        const std::size_t mask = _slots.size() - 1;
        std::size_t at = line.hash & mask;
        for (; _slots[at] != 0; at = (at + 1) & mask) {
            const KivSettingLine& other = _lines[_slots[at] - 1];
            if (other.hash == line.hash && other.key == line.key) break;
        }
        const int earlier = _slots[at] == 0 ? 0 : _lines[_slots[at] - 1].number;
        _slots[at] = static_cast<std::uint32_t>(&line - _lines.data() + 1);
        return earlier;
    }

private:
    const std::vector<KivSettingLine>& _lines;
    std::vector<std::uint32_t> _slots; // a line's index + 1; 0: free
};

} // namespace

KivSettingFile::KivSettingFile(std::string text)
    : _text(std::make_unique<const std::string>(std::move(text))), _seal(KivSettingSeal::StateOf(*_text))
{
    const std::string_view all = *_text;
    const KivSettingHead head(all);
    _newer = head.isThere && !head.isKnown;
    _damaged = _newer;
    _lines.reserve(std::min(KivCountLineEnds(all), KivMostLines) + 1);
    for (KivTextLines lines(all); lines.Next();) {
        const std::size_t mark = lines.Number() == 1 ? head.begin : 0;
        KivSettingLine& line = _lines.emplace_back();
        KivParseSettingLine(lines.Line().substr(mark), line);
        line.hash = KivSettingTable::Hash(line.key);
        line.begin = static_cast<std::uint32_t>(lines.Begin() + mark);
        line.end = static_cast<std::uint32_t>(lines.End());
        line.number = lines.Number();
        _damaged = _damaged || line.kind == KivSettingLine::Kind::Damaged;
        if (line.kind == KivSettingLine::Kind::Other) _lines.pop_back();
        _lineCount = lines.Number();
    }
}

void KivSettingFile::Report(const KivUnicodeString& path) const
{
    if (_newer) {
        KivReport({KivDiagnostic::Severity::Warning,
                   "the file is of another version; the lines that can be read are used",
                   path,
                   1,
                   {}});
    }
    std::size_t wrong = 0;
    EarlierLines earlierLines(_lines);
    for (const KivSettingLine& line : _lines) {
        std::string text;
        if (line.reason) {
            text = std::string(line.reason) + "; the line is not used";
        } else if (KivHasValue(line.value)) {
            if (const int earlier = earlierLines.Exchange(line))
                text = "the key stands in line " + std::to_string(earlier) + " too; this line counts";
        }
        if (!text.empty() && ++wrong <= kMostReports) Tell(path, line, text);
    }
    if (wrong > kMostReports) {
        KivReport({KivDiagnostic::Severity::Warning,
                   KivUnicodeString(std::to_string(wrong - kMostReports) + " more lines are wrong"),
                   path,
                   0,
                   {}});
    }
}

// The lines of the changed keys, in their order.
std::vector<KivSettingFile::Match> KivSettingFile::Find(const std::vector<KivSettingChange>& changes) const
{
    constexpr std::size_t bits = 12; // most lines are of no changed key, and one bit tells
    std::bitset<std::size_t{1} << bits> seen;
    const auto bitOf = [](std::size_t hash) { return hash >> (64 - bits); };
    std::unordered_map<std::string_view, std::size_t> byKey;
    for (std::size_t change = 0; change < changes.size(); ++change) {
        byKey.emplace(changes[change].key.View(), change);
        seen.set(bitOf(KivSettingTable::Hash(changes[change].key.View())));
    }
    std::vector<Match> matches;
    for (const KivSettingLine& line : _lines) {
        if (!seen[bitOf(line.hash)] || line.kind == KivSettingLine::Kind::Unknown) continue;
        if (const auto found = byKey.find(line.key); found != byKey.end())
            matches.push_back({&line, found->second});
    }
    return matches;
}

KivSettingEdit KivSettingFile::With(const std::vector<KivSettingChange>& changes) const
{
    const std::vector<Match> matches = Find(changes);
    std::vector<const KivSettingLine*> places(changes.size()); // the last line of the key, which is replaced
    for (const Match& match : matches) places[match.change] = match.line;

    const std::string_view text = Text();
    std::string result;
    result.reserve(text.size() + changes.size() * 48 + 96);
    std::vector<KivSettingLine> written;
    const auto append = [&](const KivSettingChange& change, std::string_view lineEnd, int number) {
        KivSettingLine& line = written.emplace_back();
        line.hash = KivSettingTable::Hash(change.key.View());
        line.begin = static_cast<std::uint32_t>(result.size());
        KivAppendSettingLine(result, change);
        result += lineEnd;
        line.end = static_cast<std::uint32_t>(result.size());
        line.number = number;
    };
    // The head comes first: what means something in the first line alone must not come to stand there.
    const KivSettingHead head(text);
    const std::string_view lineEnd = KivLineEndOf(text);
    result += text.substr(0, head.begin);
    if (!head.isThere) result.append(KivSettingHead::Line()).append(lineEnd);
    std::size_t copied = head.begin;
    for (const auto& [line, index] : matches) {
        result += text.substr(copied, line->begin - copied);
        copied = line->end;
        if (places[index] != line || changes[index].entry.IsEmpty()) continue;
        const std::string_view old = text.substr(line->begin, line->end - line->begin);
        append(changes[index], old.substr(KivWithoutLineEnd(old).size()), line->number);
    }
    const bool replacesAll = written.size() == matches.size();
    const bool isOurs = _seal == KivSettingSeal::State::Fits && !_damaged;
    const std::size_t rest = isOurs ? KivSettingSeal::BeginOf(text) : text.size();
    result += text.substr(copied, rest - copied);
    for (std::size_t index = 0, added = 0; index < changes.size(); ++index) {
        if (changes[index].entry.IsEmpty() || places[index]) continue;
        if (!KivIsLastLineEnded(result)) result += lineEnd;
        append(changes[index], lineEnd, _lineCount + static_cast<int>(added++)); // from the seal's place on
    }
    const std::size_t body = result.size();
    KivSettingEdit edit{std::make_unique<const std::string>(KivSettingSeal::Put(std::move(result))), {}, {}};
    const bool isInPlace = isOurs && replacesAll && KivSettingSeal::BeginOf(*edit.text) == body;
    if (!isInPlace) {
        edit.whole.emplace(*edit.text);
        return edit;
    }
    for (KivSettingLine& line : written) {
        const std::string_view whole = std::string_view(*edit.text).substr(line.begin, line.end - line.begin);
        KivParseSettingLine(KivWithoutLineEnd(whole), line);
        line.value = {};
    }
    edit.written = std::move(written);
    return edit;
}

void KivSettingFile::Prepare(const KivSettingEdit& edit)
{
    if (edit.written) _lines.reserve(_lines.size() + edit.written->size());
}

std::optional<std::vector<KivSettingLine>> KivSettingFile::Become(KivSettingEdit edit)
{
    if (edit.whole) {
        *this = std::move(*edit.whole);
        return {};
    }
    auto next = edit.written->begin();
    std::ptrdiff_t shift = 0;
    for (KivSettingLine& line : _lines) {
        if (next != edit.written->end() && next->number == line.number) {
            shift = static_cast<std::ptrdiff_t>(next->end) - static_cast<std::ptrdiff_t>(line.end);
            line = *next++;
            continue;
        }
        line.key = {edit.text->data() + (line.key.data() - _text->data()) + shift, line.key.size()};
        line.begin = static_cast<std::uint32_t>(line.begin + shift);
        line.end = static_cast<std::uint32_t>(line.end + shift);
    }
    for (; next != edit.written->end(); ++next, ++_lineCount) _lines.push_back(*next);
    _text = std::move(edit.text);
    _isTaken = true;
    return std::move(edit.written);
}

KivSettingEdit KivSettingFile::WithoutDamage() const
{
    const std::string_view text = Text();
    std::string result;
    result.reserve(text.size() + 96);
    std::size_t copied = 0;
    for (const KivSettingLine& line : _lines) {
        if (line.kind != KivSettingLine::Kind::Damaged) continue;
        result += text.substr(copied, line.begin - copied);
        copied = line.end;
        if (!line.lock || line.key.empty()) continue;
        KivAppendSettingLine(result, {KivString(line.key), {.value = {}, .lock = true}});
        const std::string_view old = text.substr(line.begin, line.end - line.begin);
        result += old.substr(KivWithoutLineEnd(old).size());
    }
    result += text.substr(copied);
    KivSettingEdit edit{std::make_unique<const std::string>(KivSettingSeal::Put(std::move(result))), {}, {}};
    edit.whole.emplace(*edit.text);
    return edit;
}
