#pragma once

#include "Dialog/KivDlgFrame.h"
#include "Form/KivFormRow.h"

class KivPageForm;

// A group of a page while it is declared, row by row.
class KivFormGroup {
public:
    KivFormGroup(KivPageForm& form, KivDlgFrame& frame) : _form(form), _frame(frame) {}

    // The next row of controls; with a name, it starts with a label of that name, which names its first
    // control.
    KivFormRow Row();
    KivFormRow Row(const KivString& labelName);

    // A part of the group with rows of its own, where the next row would be.
    KivFormGroup Part(const KivString& name, short columns = 1);

    // Radio buttons under one padlock, one for each choice, where the next row would be. The answered frame
    // belongs to the dialog tree.
    KivDrwLockFrame* Radios(const KivString& name, KivPropertyOf<int>& property, const KivSettingKind& kind,
                            KivFormRow::Rule rule = {});

    KivDlgFrame& Frame() const { return _frame; }

private:
    KivPageForm& _form;
    KivDlgFrame& _frame;
    short _rows = 0;
};
