#include "Settings/KivSettingSeal.h"

#include "Base/KivChecksum.h"
#include "Base/KivTextLines.h"
#include "Disk/KivPath.h"

#include <algorithm>

namespace {

constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view kMark = "# kivsettings ";
constexpr std::string_view kVersion = "1";
constexpr std::string_view kSealed = " sealed";
constexpr std::string_view kSealMark = "# kivsettings seal ";

std::string SealOf(std::string_view text)
{
    std::string seal(kSealMark);
    seal.append(std::to_string(text.size())).append(" ").append(KivChecksumText(text));
    return seal.append(KivLineEndOf(text));
}

void TakeSealsOut(std::string& text)
{
    std::size_t kept = 0, from = 0; // what is kept so far, and where the rest begins
    for (std::size_t at = text.find(kSealMark); at != std::string::npos; at = text.find(kSealMark, at + 1)) {
        if (at > 0 && !KivIsLastLineEnded(std::string_view(text).substr(0, at))) continue; // within a line
        if (kept != from) std::copy(text.data() + from, text.data() + at, text.data() + kept);
        kept += at - from;
        from = at + KivFirstLineLength(std::string_view(text).substr(at));
    }
    text.erase(kept, from - kept);
}

} // namespace

KivSettingHead::KivSettingHead(std::string_view text)
{
    if (text.starts_with(kByteOrderMark)) begin = kByteOrderMark.size();
    std::string_view line = text.substr(begin);
    line = KivWithoutLineEnd(line.substr(0, KivFirstLineLength(line)));
    end = begin + line.size();
    isThere = line.starts_with(kMark);
    if (!isThere) return;
    line.remove_prefix(kMark.size());
    isSealed = line.ends_with(kSealed);
    if (isSealed) line.remove_suffix(kSealed.size());
    isKnown = line == kVersion;
}

std::string KivSettingHead::Line()
{
    return std::string(kMark).append(kVersion).append(kSealed);
}

std::size_t KivSettingSeal::BeginOf(std::string_view text)
{
    const std::size_t before = KivWithoutLineEnd(text).find_last_of("\r\n");
    return before == std::string_view::npos ? 0 : before + 1;
}

KivSettingSeal::State KivSettingSeal::StateOf(std::string_view text)
{
    const std::size_t begin = BeginOf(text);
    const std::string_view last = text.substr(begin);
    const KivSettingHead head(text);
    if (head.isSealed) return last == SealOf(text.substr(0, begin)) ? State::Fits : State::Broken;
    const bool isCutInHead = !text.empty() && KivSettingHead::Line().starts_with(text.substr(head.begin));
    return isCutInHead || last.starts_with(kSealMark) ? State::Broken : State::None;
}

std::string KivSettingSeal::Put(std::string text)
{
    TakeSealsOut(text);
    const KivSettingHead head(text);
    const std::string_view lineEnd = KivLineEndOf(text);
    if (!head.isThere)
        text.insert(head.begin, KivSettingHead::Line().append(lineEnd));
    else if (!head.isSealed)
        text.insert(head.end, kSealed);
    if (!KivIsLastLineEnded(text)) text.append(lineEnd);
    return text.append(SealOf(text));
}

KivUnicodeString KivSettingSeal::BrokenInLayer(const KivUnicodeString& file)
{
    std::string_view directory = KivDirectoryOf(file.View());
    if (directory.size() > 1) directory.remove_suffix(1);
    KivUnicodeString words(
        "the administrator's file was edited by hand, or is damaged: its seal does not fit; ");
    return words.Append("\"kivsettings seal --layer ").Append(directory).Append("\" accepts it as it stands");
}
