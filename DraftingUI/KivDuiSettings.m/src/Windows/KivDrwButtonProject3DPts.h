#pragma once

#include "Dialog/KivComboSymbol.h"
#include "Dialog/KivDlgRadioButton.h"
#include "Windows/KivDrwButtonDialog.h"

// Chooses the symbol of projected 3D points: the one that they have in 3D, or one of the drafting symbols.
class KivDrwButtonProject3DPts final : public KivClass<KivDrwButtonProject3DPts, KivDrwButtonDialog> {
public:
    static constexpr const char* Name = "KivDrwButtonProject3DPts";
    KivDrwButtonProject3DPts(KivDialog* parent, const KivString& name);

    void Build();

private:
    void ShowValues() override;
    void ReadFrom(KivCommand* from) override;

    KIV_KEY_PROPERTY(_symbol, int, KivDrwKeys::DrwProject3DSymbol)
    KivWeakPtr<KivDlgRadioButton> _inherited, _chosen;
    KivWeakPtr<KivComboSymbol> _combo;
};
