#pragma once

#include "Dialog/KivDlgFrame.h"
#include "Form/KivPageForm.h"
#include "Form/KivPageRules.h"
#include "Form/KivProperty.h"

// The name of every tab's frame in its page.
inline constexpr const char* kKivDrwFrameName = "DrwSet";

// What all page frames have in common, in calling order: construction, Build, Initialize, any number of
// Write.
class KivPageFrame : public KivClass<KivPageFrame, KivDlgFrame> {
public:
    static constexpr const char* Name = "KivPageFrame";
    static constexpr const char* Framework = "DraftingUI";
    using Refused = KivPageForm::Refused;

    // Titles, helps and icons of the page come from the text catalogue of that name.
    KivPageFrame(KivDialog* parent, const KivString& name, const KivString& catalogue,
                 Refused refused = Refused::Build);

    // Creates the widgets, once.
    virtual void Build() = 0;
    // Loads all properties, in accessor order, and shows them and their locks; at any time.
    virtual void Initialize();
    // Shows the properties and applies the rules that depend on them.
    virtual void UpdateWidgets();
    // The callback that every control's change notification reaches, unless a page has another.
    void Write(KivCommand* from, KivNotification* notification, void* data);

    // The page's own catalogue at level 0 or below, further up what the framework answers.
    KivString GetResourceFile(int level) const override;

protected:
    // A titled group below those that are there, or in the given row of the page's grid. A long page stands
    // in columns: a group may be as high as several of its neighbors.
    KivFormGroup Group(const KivString& name, const KivString& icon);
    KivFormGroup Group(const KivString& name, const KivString& icon, short row, short column = 0,
                       short rows = 1);

    KivProperties _properties; // in accessor order
    KivPageForm _form;
    KivPageRules _rules; // applied whenever properties are shown or stored

private:
    KivString _catalogue;
    short _groups = 0;
    bool _isShown = false; // until then the locks are those that Build has just taken
};
