#pragma once

#include "Native/NativeCombo.h"

// A combo that draws what each line's words stand for before them.
class NativeDrawnCombo : public NativeCombo {
public:
    using NativeCombo::NativeCombo;

protected:
    // The asked width does not count the drawing.
    int VisibleWidth() const override { return 0; }
};

// A combo of line types.
class NativeTypeCombo : public NativeDrawnCombo {
public:
    NativeTypeCombo(KivDialog& node, QWidget* parent);

protected:
    QIcon LineIcon(int line) const override;
};

// A combo of line weights, drawn as thick as they are printed.
class NativeWeightCombo : public NativeDrawnCombo {
public:
    NativeWeightCombo(KivDialog& node, QWidget* parent);

protected:
    QIcon LineIcon(int line) const override;
};

// A combo of point symbols.
class NativeSymbolCombo : public NativeDrawnCombo {
public:
    using NativeDrawnCombo::NativeDrawnCombo;

protected:
    QIcon LineIcon(int line) const override;
};
