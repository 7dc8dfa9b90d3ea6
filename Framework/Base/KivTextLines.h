#pragma once

#include <cstddef>
#include <string_view>

// Goes over the lines of a text, one after the other. A line ends in LF, CRLF or CR, whatever the others end
// in; the last one may have no end. The text has to outlive it.
class KivTextLines {
public:
    explicit KivTextLines(std::string_view text);

    // Goes to the next line, at first to the first one; false when there is none.
    bool Next();

    std::string_view Line() const { return _text.substr(_begin, _lineEnd - _begin); } // without its end
    std::size_t Begin() const { return _begin; }
    std::size_t End() const { return _end; } // behind the line's end
    int Number() const { return _number; }   // 1-based

private:
    std::size_t Ahead(char c, std::size_t& at) const;

    std::string_view _text;
    std::size_t _feed;   // the next LF, else the end of the text
    std::size_t _return; // and the next CR
    std::size_t _begin = 0;
    std::size_t _lineEnd = 0;
    std::size_t _end = 0;
    int _number = 0;
};

// How long the first line is, its end included.
std::size_t KivFirstLineLength(std::string_view text);

// What the first line ends in; LF where it has no end. Points to no part of the text.
std::string_view KivLineEndOf(std::string_view text);

// A line without its end.
std::string_view KivWithoutLineEnd(std::string_view line);

// Whether the last line has its end; no line lacks none.
bool KivIsLastLineEnded(std::string_view text);

// How many lines have their end.
std::size_t KivCountLineEnds(std::string_view text);
