#pragma once

#include "Native/NativeCombo.h"

// A combo of line types.
class NativeTypeCombo : public NativeCombo {
public:
    NativeTypeCombo(KivDialog& node, QWidget* parent);

protected:
    // The asked width does not count the line that is drawn before the words.
    int VisibleWidth() const override { return 0; }
    QIcon LineIcon(int line) const override;
};
