#pragma once

#include "Dialog/KivDlgFrame.h"

// A group of an options page: a titled frame with an icon beside its controls.
class KivDlgToolsOptionsFrame : public KivClass<KivDlgToolsOptionsFrame, KivDlgFrame> {
public:
    static constexpr const char* Name = "KivDlgToolsOptionsFrame";
    // The icon's name may be empty.
    KivDlgToolsOptionsFrame(KivDialog* parent, const KivString& name, const KivString& icon);
};
