#pragma once

#include "Dialog/KivDialog.h"

// A line of text, usually the name of the control beside it, or of several in its row.
class KivDlgLabel : public KivClass<KivDlgLabel, KivDialog> {
public:
    static constexpr const char* Name = "KivDlgLabel";
    using KivClass::KivClass;

    // Ties the label to a control that it names, or to one more: it grays when none of them can be used.
    // Null is passed over.
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
