#pragma once

#include "Base/KivUnicodeString.h"

#include <string_view>
#include <vector>

// One administrator layer as the list names it.
struct KivSettingListedLayer {
    KivUnicodeString directory;
    bool isOptional = false; // it counts as absent when it is away, and closes nothing
};

// What the text of a list of layers says, a line each:
//
//   # comment
//   DIR             the absolute path of a layer's directory, outermost first
//   optional DIR    the same of one that may be away
//   none            there are no layers; stands alone
class KivSettingLayerListFile {
public:
    KivSettingLayerListFile() = default;
    explicit KivSettingLayerListFile(std::string_view text);

    // A directory that is named twice stands where it was named first.
    const std::vector<KivSettingListedLayer>& Layers() const { return _layers; }

    // What somebody has to mend in it: a line that cannot be used, nothing said. A clause without a full
    // stop; empty when nothing is.
    const KivUnicodeString& Trouble() const { return _trouble; }

    // What is against believing it: that, no last line end, or a seal that does not fit.
    const KivUnicodeString& Doubt() const { return _doubt; }

    // Says every line that cannot be used (KivReport).
    void Report(const KivUnicodeString& path) const;

private:
    struct BadLine {
        int number;
        const char* reason;
    };
    void Read(std::string_view text);
    void Judge(std::string_view text);

    std::vector<KivSettingListedLayer> _layers;
    std::vector<BadLine> _badLines;
    bool _saysNone = false;
    KivUnicodeString _trouble;
    KivUnicodeString _doubt;
};
