#include "Settings/KivSettingFile.h"

#include "Base/KivDiagnostic.h"
#include "Disk/KivFileContent.h"
#include "Settings/KivSettingTable.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <unordered_map>
#include <utility>

namespace {

constexpr std::string_view kVersionMark = "# kivsettings ";
constexpr int kVersion = 1;
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";

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

std::string_view WithoutEnd(std::string_view line)
{
    if (!line.empty() && line.back() == '\n') line.remove_suffix(1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

} // namespace

KivSettingFile::KivSettingFile(std::string text) : _text(std::make_unique<const std::string>(std::move(text)))
{
    const std::string_view all = *_text;
    _lines.reserve(std::min(all.size() / 32 + 2, KivMostLines / 64));
    int number = 0;
    for (std::size_t begin = 0; begin < all.size();) {
        const void* found = std::memchr(all.data() + begin, '\n', all.size() - begin);
        const std::size_t end =
            found ? static_cast<std::size_t>(static_cast<const char*>(found) - all.data()) + 1 : all.size();
        std::string_view text_of_line = WithoutEnd(all.substr(begin, end - begin));
        if (++number == 1) {
            if (text_of_line.starts_with(kByteOrderMark)) text_of_line.remove_prefix(kByteOrderMark.size());
            ReadVersion(text_of_line);
        }
        KivSettingLine& line = _lines.emplace_back();
        KivParseSettingLine(text_of_line, line);
        line.hash = KivSettingTable::Hash(line.key);
        line.begin = begin;
        line.end = end;
        line.number = number;
        _hasPatterns = _hasPatterns || line.isPattern;
        _damaged = _damaged || line.kind == KivSettingLine::Kind::Damaged;
        if (line.kind == KivSettingLine::Kind::Other) _lines.pop_back();
        begin = end;
    }
}

void KivSettingFile::ReadVersion(std::string_view firstLine)
{
    if (!firstLine.starts_with(kVersionMark)) return; // written by hand: taken as it stands
    firstLine.remove_prefix(kVersionMark.size());
    int version = 0;
    const auto read = std::from_chars(firstLine.data(), firstLine.data() + firstLine.size(), version);
    _newer = read.ec != std::errc{} || version != kVersion;
    _damaged = _newer;
}

std::vector<std::string_view> KivSettingFile::DamagedLines() const
{
    std::vector<std::string_view> damaged;
    for (const KivSettingLine& line : _lines) {
        if (line.kind != KivSettingLine::Kind::Damaged) continue;
        damaged.push_back(WithoutEnd(Text().substr(line.begin, line.end - line.begin)));
    }
    return damaged;
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
    const std::size_t firstEnd = text.find('\n');
    const bool carriageReturns =
        firstEnd != std::string_view::npos && firstEnd > 0 && text[firstEnd - 1] == '\r';
    const std::string_view lineEnd = carriageReturns ? "\r\n" : "\n";

    std::string result;
    result.reserve(text.size() + changes.size() * 48 + 32);
    std::size_t copied = 0;
    for (const KivSettingLine& line : _lines) {
        if (line.kind == KivSettingLine::Kind::Unknown) continue;
        const auto found = pending.find(line.key);
        if (found == pending.end()) continue;
        result += text.substr(copied, line.begin - copied);
        copied = line.end;
        if (found->second.place != &line || found->second.change->entry.IsEmpty()) continue;
        KivAppendSettingLine(result, *found->second.change);
        const std::string_view old = text.substr(line.begin, line.end - line.begin);
        result += old.substr(WithoutEnd(old).size());
    }
    result += text.substr(copied);

    // What means something in the first line alone must not come to stand there.
    const std::string version = std::string(kVersionMark) + std::to_string(kVersion);
    const bool isHeadless = copied > 0 && !_lines.empty() && _lines.front().begin == 0;
    if (isHeadless && (result.starts_with(kByteOrderMark) || result.starts_with(kVersionMark)))
        result.insert(0, version).insert(version.size(), lineEnd);
    if (text.empty()) (result += version) += '\n';
    for (const KivSettingChange& change : changes) {
        if (change.entry.IsEmpty() || pending.find(change.key.View())->second.place) continue;
        if (!result.empty() && result.back() != '\n') result += lineEnd;
        KivAppendSettingLine(result, change);
        result += lineEnd;
    }
    return result;
}
