#include "Base/KivTextLines.h"

#include <algorithm>

namespace {

// In sums of a byte, of which a processor adds many at once.
std::size_t CountFeeds(std::string_view text)
{
    constexpr std::size_t block = 255;
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += block) {
        unsigned char some = 0;
        for (const char c : text.substr(at, block))
            some = static_cast<unsigned char>(some + (c == '\n' ? 1 : 0));
        count += some;
    }
    return count;
}

} // namespace

KivTextLines::KivTextLines(std::string_view text)
    : _text(text), _feed(std::min(text.find('\n'), text.size())),
      _return(std::min(text.find('\r'), text.size()))
{}

// Looks for it only when the one found last lies behind: no text is gone over twice, whatever it ends in.
std::size_t KivTextLines::Ahead(char c, std::size_t& at) const
{
    if (at < _begin) at = std::min(_text.find(c, _begin), _text.size());
    return at;
}

bool KivTextLines::Next()
{
    if (_end == _text.size()) return false;
    _begin = _end;
    const std::size_t feed = Ahead('\n', _feed);
    const std::size_t ret = Ahead('\r', _return);
    _lineEnd = std::min(feed, ret);
    _end = std::min(_lineEnd + (ret + 1 == feed ? 2 : 1), _text.size());
    ++_number;
    return true;
}

std::size_t KivFirstLineLength(std::string_view text)
{
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    return std::min(end + (text.substr(end).starts_with("\r\n") ? 2 : 1), text.size());
}

std::string_view KivLineEndOf(std::string_view text)
{
    const std::string_view line = text.substr(0, KivFirstLineLength(text));
    const std::string_view end = line.substr(KivWithoutLineEnd(line).size());
    return end == "\r\n" ? "\r\n" : end == "\r" ? "\r" : "\n";
}

std::string_view KivWithoutLineEnd(std::string_view line)
{
    if (line.ends_with('\n')) line.remove_suffix(1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

bool KivIsLastLineEnded(std::string_view text)
{
    return text.empty() || text.back() == '\n' || text.back() == '\r';
}

std::size_t KivCountLineEnds(std::string_view text)
{
    std::size_t count = CountFeeds(text);
    for (std::size_t at = text.find('\r'); at != std::string_view::npos; at = text.find('\r', at + 1))
        if (!text.substr(at + 1).starts_with('\n')) ++count;
    return count;
}
