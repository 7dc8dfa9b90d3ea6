#pragma once

#include "Dialog/KivDlgFrame.h"
#include "Form/KivFormLine.h"

class KivPageForm;

// A group of a page while it is declared, line by line.
class KivFormGroup {
public:
    KivFormGroup(KivPageForm& form, KivDlgFrame& frame) : _form(form), _frame(frame) {}

    // The next line of controls; with a name, it starts with a label of that name, which names its first
    // control.
    KivFormLine Line();
    KivFormLine Line(const KivString& labelName);

    // A part of the group with lines of its own, in the place of the next line.
    KivFormGroup Part(const KivString& name, short columns = 1);

    // Radio buttons under one padlock, one for each choice, in the place of the next line. The answered frame
    // belongs to the dialog tree.
    KivDrwLockFrame* Radios(const KivString& name, KivPropertyOf<int>& property, const KivSettingKind& kind,
                            KivFormLine::Rule rule = {});

    KivDlgFrame& Frame() const { return _frame; }

private:
    KivPageForm& _form;
    KivDlgFrame& _frame;
    short _lines = 0;
};
