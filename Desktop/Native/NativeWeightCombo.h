#pragma once

#include "Native/NativeCombo.h"

// A combo of line weights, drawn as thick as they are printed.
class NativeWeightCombo : public NativeCombo {
public:
    NativeWeightCombo(KivDialog& node, QWidget* parent);

protected:
    // The asked width does not count the line that is drawn before the words.
    int VisibleWidth() const override { return 0; }
    QIcon LineIcon(int line) const override;
};
