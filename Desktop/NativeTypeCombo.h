#pragma once

#include "NativeCombo.h"

// A combo of line types.
class NativeTypeCombo : public NativeCombo {
public:
    NativeTypeCombo(KivDialog& node, QWidget* parent);

protected:
    QIcon LineIcon(int line) const override;
};
