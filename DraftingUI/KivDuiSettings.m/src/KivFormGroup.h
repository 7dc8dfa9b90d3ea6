#pragma once

#include "Dialog/KivDlgFrame.h"
#include "KivDrwLockCheckButton.h"
#include "KivDrwLockComboColor.h"
#include "KivDrwLockLabel.h"
#include "KivDrwLockSpinner.h"
#include "KivPageRow.h"
#include "KivPageValue.h"
#include "KivSpinnerSetup.h"

class KivFormLine;
class KivPageForm;

// A group of a page while it is declared, line by line.
class KivFormGroup {
public:
    KivFormGroup(KivPageForm& form, KivDlgFrame& frame) : _form(form), _frame(frame) {}

    // The next line of controls; with a name, it starts with a label of that name, which names its first
    // control.
    KivFormLine Line();
    KivFormLine Line(const KivString& labelName);

private:
    KivPageForm& _form;
    KivDlgFrame& _frame;
    short _lines = 0;
};

// A line of a group while it is declared, control by control from the left. A rule runs after the control's
// value was stored; the answered control belongs to the dialog tree.
class KivFormLine {
public:
    using Rule = KivPageRow::Rule;

    KivFormLine(KivPageForm& form, KivDlgFrame& frame, short line) : _form(form), _frame(frame), _line(line)
    {}

    KivDrwLockCheckButton* Check(const KivString& name, KivCachedValue<unsigned char>& value, Rule rule = {});
    KivDrwLockSpinner* Spinner(const KivString& name, KivCachedValue<double>& value,
                               const KivSpinnerSetup& setup, Rule rule = {});
    KivDrwLockSpinner* Spinner(const KivString& name, KivCachedValue<int>& value, const KivCountSetup& setup,
                               Rule rule = {});
    KivDrwLockComboColor* Colour(const KivString& name, KivCachedValue<KivPageColour>& value, Rule rule = {});
    void Label(const KivString& name);

private:
    KivDrwLockSpinner* BareSpinner(const KivString& name, const KivSettingInfo& info);
    void Place(KivDialog& control);
    void Place(KivDrwLockDialog& control);

    KivPageForm& _form;
    KivDlgFrame& _frame;
    short _line;
    short _column = 0;
    KivWeakPtr<KivDrwLockLabel> _label;
};
