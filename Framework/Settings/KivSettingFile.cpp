#include "Settings/KivSettingFile.h"

#include "Base/KivDiagnostic.h"
#include "Disk/KivFileContent.h"
#include "Settings/KivSettingTable.h"

#include <algorithm>
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
    _lines.reserve(std::min(all.size() / 32 + 2, KivMostLines / 64));
    for (KivTextLines lines(all); lines.Next();) {
        const std::size_t mark = lines.Number() == 1 ? head.begin : 0;
        KivSettingLine& line = _lines.emplace_back();
        KivParseSettingLine(lines.Line().substr(mark), line);
        line.hash = KivSettingTable::Hash(line.key);
        line.begin = lines.Begin() + mark;
        line.end = lines.End();
        line.number = lines.Number();
        _hasPatterns = _hasPatterns || line.isPattern;
        _damaged = _damaged || line.kind == KivSettingLine::Kind::Damaged;
        if (line.kind == KivSettingLine::Kind::Other) _lines.pop_back();
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

std::string KivSettingFile::With(const std::vector<KivSettingChange>& changes) const
{
    struct Pending {
        const KivSettingChange* change;
        const KivSettingLine* place = nullptr; // the last line of the key, which the new one replaces
    };
    std::unordered_map<std::string_view, Pending> pending;
    for (const KivSettingChange& change : changes) pending.emplace(change.key.View(), Pending{&change});
    for (const KivSettingLine& line : _lines) {
        if (line.kind == KivSettingLine::Kind::Unknown) continue;
        if (const auto found = pending.find(line.key); found != pending.end()) found->second.place = &line;
    }

    const std::string_view text = Text();
    std::string result;
    result.reserve(text.size() + changes.size() * 48 + 96);
    // The head comes first: what means something in the first line alone must not come to stand there.
    const KivSettingHead head(text);
    const std::string_view lineEnd = KivLineEndOf(text);
    result += text.substr(0, head.begin);
    if (!head.isThere) result.append(KivSettingHead::Line()).append(lineEnd);
    std::size_t copied = head.begin;
    for (const KivSettingLine& line : _lines) {
        if (line.kind == KivSettingLine::Kind::Unknown) continue;
        const auto found = pending.find(line.key);
        if (found == pending.end()) continue;
        result += text.substr(copied, line.begin - copied);
        copied = line.end;
        if (found->second.place != &line || found->second.change->entry.IsEmpty()) continue;
        KivAppendSettingLine(result, *found->second.change);
        const std::string_view old = text.substr(line.begin, line.end - line.begin);
        result += old.substr(KivWithoutLineEnd(old).size());
    }
    result += text.substr(copied);
    for (const KivSettingChange& change : changes) {
        if (change.entry.IsEmpty() || pending.find(change.key.View())->second.place) continue;
        if (!KivIsLastLineEnded(result)) result += lineEnd;
        KivAppendSettingLine(result, change);
        result += lineEnd;
    }
    return KivSettingSeal::Put(std::move(result));
}
