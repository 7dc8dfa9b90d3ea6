#pragma once

#include "NativeCombo.h"

// A combo of point symbols.
class NativeSymbolCombo : public NativeCombo {
public:
    using NativeCombo::NativeCombo;

protected:
    QIcon LineIcon(int line) const override;
};
