#pragma once

#include "Native/NativeCombo.h"

// A combo of point symbols.
class NativeSymbolCombo : public NativeCombo {
public:
    using NativeCombo::NativeCombo;

protected:
    // The asked width does not count the symbol that is drawn before its name.
    int VisibleWidth() const override { return 0; }
    QIcon LineIcon(int line) const override;
};
