#pragma once

#include "Dialog/KivDialog.h"

// A line of text, usually the name of the control beside it.
class KivDlgLabel : public KivClass<KivDlgLabel, KivDialog> {
public:
    static constexpr const char* Name = "KivDlgLabel";
    using KivClass::KivClass;

    // Ties the label to the control that it names: it greys with it, and its keyboard letter leads there.
    void SetLabelledControl(KivDialog* control);
    KivDialog* GetLabelledControl() const { return _control.Get(); }
    // Whether it greys with its control: a label does until its page says otherwise.
    void SetGreysWithControl(bool greys);

    bool IsEnabled() const override;

private:
    KivWeakPtr<KivDialog> _control;
    bool _greysWithControl = true;
};
