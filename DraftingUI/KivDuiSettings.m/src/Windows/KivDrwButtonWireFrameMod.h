#pragma once

#include "Dialog/KivDlgRadioButton.h"
#include "Windows/KivDrwButtonDialog.h"

// Chooses how generated wireframe is shown: hidden where the part hides it, or always visible.
class KivDrwButtonWireFrameMod final : public KivClass<KivDrwButtonWireFrameMod, KivDrwButtonDialog> {
public:
    static constexpr const char* Name = "KivDrwButtonWireFrameMod";
    KivDrwButtonWireFrameMod(KivDialog* parent, const KivString& name);

    void Build();

private:
    void ShowValues() override;

    KIV_KEY_PROPERTY(_mode, int, KivDrwKeys::GenWireFrameMod)
    KivWeakPtr<KivDlgRadioButton> _hidden, _visible;
};
