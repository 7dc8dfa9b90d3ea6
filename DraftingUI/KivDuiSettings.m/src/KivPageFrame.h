#pragma once

#include "Dialog/KivDlgFrame.h"
#include "KivPageForm.h"
#include "KivPageValue.h"

// What all page frames have in common, in calling order: construction, Build, Initialize, any number of
// Write.
class KivPageFrame : public KivClass<KivPageFrame, KivDlgFrame> {
public:
    static constexpr const char* Name = "KivPageFrame";
    static constexpr const char* Framework = "DraftingUI";
    // Titles, helps and icons of the page come from the text catalogue of that name.
    KivPageFrame(KivDialog* parent, const KivString& name, const KivString& catalogue);

    // Creates the widgets, once.
    virtual void Build() = 0;
    // Loads all values, in accessor order, and shows them and their locks; at any time.
    void Initialize();
    // Shows the cached values and applies the rules that depend on them.
    virtual void UpdateWidgets();
    // The one callback that every control's change notification reaches.
    void Write(KivCommand* from, KivNotification* notification, void* data);

protected:
    KivBoundValues _values; // in accessor order
    KivPageForm _form{*this};
};
