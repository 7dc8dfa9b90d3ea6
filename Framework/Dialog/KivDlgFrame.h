#pragma once

#include "Dialog/KivDialog.h"

// A frame without border or title: a part of its parent's surface that places its own children.
class KivDlgFrame : public KivClass<KivDlgFrame, KivDialog> {
public:
    static constexpr const char* Name = "KivDlgFrame";
    KivDlgFrame(KivDialog* parent, const KivString& name, unsigned long style = KivDlgGridLayout)
        : KivClass(parent, name, style)
    {}

    // The choice among the radio buttons in it.
    KivUnicodeString GetShownValue() const override;
};

// A group of an options page: a titled frame with an icon beside its controls.
class KivDlgToolsOptionsFrame : public KivClass<KivDlgToolsOptionsFrame, KivDlgFrame> {
public:
    static constexpr const char* Name = "KivDlgToolsOptionsFrame";
    // The icon's name may be empty.
    KivDlgToolsOptionsFrame(KivDialog* parent, const KivString& name, const KivString& icon);
};
