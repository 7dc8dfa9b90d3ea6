#pragma once

#include "Base/KivTextLines.h"
#include "Settings/KivSettingLine.h"
#include "Settings/KivSettingSeal.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

// The text of one settings file and what its lines say. The text is never changed: what a save writes is a
// new text, with a seal, in which every line that no change concerns is kept byte for byte.
class KivSettingFile {
public:
    KivSettingFile() : KivSettingFile(std::string()) {}
    explicit KivSettingFile(std::string text);

    std::string_view Text() const { return *_text; }

    // Every line but blank ones and comments, in order.
    const std::vector<KivSettingLine>& Lines() const { return _lines; }

    // Whether a line locks all keys with a prefix.
    bool HasPatterns() const { return _hasPatterns; }

    // A damaged line, or a version that this one does not know.
    bool IsDamaged() const { return _damaged; }

    // False when the last line has no end: whoever wrote the file may have been cut off.
    bool IsTerminated() const { return KivIsLastLineEnded(*_text); }

    KivSettingSeal::State SealState() const { return _seal; }

    // Says every line that costs something, and every key that stands twice (KivReport).
    void Report(const KivUnicodeString& path) const;

    // The text after changes, sealed. A changed key keeps the place of its last line; new keys come at the
    // end, in the order of the changes. No key may stand in the changes twice.
    std::string With(const std::vector<KivSettingChange>& changes) const;

private:
    // On the heap, so that the keys of the lines, which point into it, survive a move.
    std::unique_ptr<const std::string> _text;
    std::vector<KivSettingLine> _lines;
    KivSettingSeal::State _seal;
    bool _damaged = false;
    bool _newer = false;
    bool _hasPatterns = false;
};
