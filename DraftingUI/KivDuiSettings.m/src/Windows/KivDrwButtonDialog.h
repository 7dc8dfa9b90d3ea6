#pragma once

#include "Dialog/KivDlgDialog.h"
#include "Form/KivDrwKeyProperty.h"
#include "Form/KivPageForm.h"
#include "KivDrwSettingAccess.h"

// What the windows of the View page have in common: each edits a few keys, shows itself when it is
// constructed, and belongs to the page. There is deliberately no way to cancel one: every way of closing it
// stores what it shows and destroys it when the event is over. A Cancel of the options takes back what was
// stored.
class KivDrwButtonDialog : public KivClass<KivDrwButtonDialog, KivDlgDialog> {
public:
    static constexpr const char* Name = "KivDrwButtonDialog";
    static constexpr const char* Framework = "DraftingUI";

    // Takes the defaults of all properties, which Init does for those that are not stored; shows nothing.
    void InitValues();
    // Takes the values in force, and shows them and their locks; what was chosen since is given up.
    void Init();
    // A control has changed: takes its value, and stores nothing.
    void Notification(KivCommand* from, KivNotification* notification, void* data);
    // Closed: saves all properties, in the order in which they are loaded.
    void Ok(KivCommand* from, KivNotification* notification, void* data);
    bool HoldsChoices() const override { return _holdsChoices; }

protected:
    // Titles and helps come from the text catalogue of that name.
    KivDrwButtonDialog(KivDialog* parent, const KivString& name, const KivString& catalogue);

    // The last step of a constructor: fills the window and shows it.
    void Open();
    virtual void ShowValues() { _form.Show(); }
    virtual void ReadFrom(KivCommand* from) { _form.Read(from); }

    KivSettingRepository* _repository = KivDrwRepository(); // may be null: the window then shows defaults
    KivProperties _properties;                              // in the order of loading and saving
    KivPageForm _form{*this};

private:
    bool _holdsChoices = false;
};
