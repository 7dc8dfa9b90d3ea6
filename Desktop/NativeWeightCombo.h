#pragma once

#include "NativeCombo.h"

// A combo of line weights, drawn as thick as they are printed.
class NativeWeightCombo : public NativeCombo {
public:
    NativeWeightCombo(KivDialog& node, QWidget* parent);

protected:
    QIcon LineIcon(int line) const override;
};
