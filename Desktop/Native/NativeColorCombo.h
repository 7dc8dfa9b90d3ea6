#pragma once

#include "Dialog/KivCombos.h"
#include "Native/NativeCombo.h"

class QColorDialog;

// A combo of colors: a swatch before each name, and at the end an entry that lets the user mix any color.
class NativeColorCombo : public NativeCombo {
public:
    using NativeCombo::NativeCombo;

    // Its name and its components.
    QString SpokenValue() const override;
    // Non-modal for the tree: the color is entered when the dialog is accepted.
    QColorDialog* OpenMixer();

protected:
    QIcon LineIcon(int line) const override;
    QStringList Lines() const override;
    void Choose(int line) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    KivComboColor* Combo() const { return static_cast<KivComboColor*>(TreeNode()); }
    KivColor Color() const;

    bool _passing = false; // a key or the wheel goes along the lines
};
