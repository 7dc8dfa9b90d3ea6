#pragma once

#include "Dialog/KivDialog.h"

// A line of text, usually the name of the control beside it.
class KivDlgLabel : public KivClass<KivDlgLabel, KivDialog> {
public:
    static constexpr const char* Name = "KivDlgLabel";
    using KivClass::KivClass;

    // Ties the label to the control that it names: it grays with it, and its keyboard letter leads there.
    void SetLabeledControl(KivDialog* control);
    KivDialog* GetLabeledControl() const { return _control.Get(); }
    // Whether it grays with its control: a label does until its page says otherwise.
    void SetGraysWithControl(bool grays);

    bool IsEnabled() const override;

private:
    KivWeakPtr<KivDialog> _control;
    bool _graysWithControl = true;
};
