#pragma once

#include "Dialog/KivDialog.h"

// A line of text, usually the name of the control beside it, or of several in its row.
class KivDlgLabel : public KivClass<KivDlgLabel, KivDialog> {
public:
    static constexpr const char* Name = "KivDlgLabel";
    using KivClass::KivClass;

    // Ties the label to the control that it names, and to that alone: it grays with it, and its keyboard
    // letter leads there. Null unties it.
    void SetLabeledControl(KivDialog* control);
    // Ties it to a further control: it grays when none of them can be used.
    void AddLabeledControl(KivDialog* control);
    // Where its letter leads: the first of its controls that can be used, else the first; null without any.
    KivDialog* GetLabeledControl() const;
    // Whether it grays with its controls: a label does until its page says otherwise.
    void SetGraysWithControl(bool grays);

    bool IsEnabled() const override;

private:
    std::vector<KivWeakPtr<KivDialog>> _controls;
    bool _graysWithControl = true;
};
