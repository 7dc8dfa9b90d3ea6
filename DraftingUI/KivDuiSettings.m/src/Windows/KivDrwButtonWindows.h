#pragma once

#include "Dialog/KivCombos.h"
#include "Dialog/KivDlgButtons.h"
#include "Windows/KivDrwButtonDialog.h"

// Chooses how generated fillets are represented in views.
class KivDrwButtonGenFil final : public KivClass<KivDrwButtonGenFil, KivDrwButtonDialog> {
public:
    static constexpr const char* Name = "KivDrwButtonGenFil";
    KivDrwButtonGenFil(KivDialog* parent, const KivString& name);

    void Build();

private:
    KIV_KEY_PROPERTY(_representation, int, KivDrwKeys::DrwGenFilConfigure)
};

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

// Line type and thickness of the geometry of five kinds of generated views.
class KivDrwButtonLinetypeView final : public KivClass<KivDrwButtonLinetypeView, KivDrwButtonDialog> {
public:
    static constexpr const char* Name = "KivDrwButtonLinetypeView";
    KivDrwButtonLinetypeView(KivDialog* parent, const KivString& name);

    void Build();
    // A combo has changed: takes what all of them show, and stores nothing.
    void OnChange(KivCommand* from, KivNotification* notification, void* data);

private:
    KIV_KEY_PROPERTY(_sectionType, unsigned int, KivDrwKeys::SectionLinetype)
    KIV_KEY_PROPERTY(_detailType, unsigned int, KivDrwKeys::DetailLinetype)
    KIV_KEY_PROPERTY(_brokenType, unsigned int, KivDrwKeys::BrokenLinetype)
    KIV_KEY_PROPERTY(_breakoutType, unsigned int, KivDrwKeys::BreakoutLinetype)
    KIV_KEY_PROPERTY(_skinType, unsigned int, KivDrwKeys::SkinLinetype)
    KIV_KEY_PROPERTY(_sectionThickness, unsigned int, KivDrwKeys::DrwSectionThickness)
    KIV_KEY_PROPERTY(_detailThickness, unsigned int, KivDrwKeys::DrwDetailThickness)
    KIV_KEY_PROPERTY(_brokenThickness, unsigned int, KivDrwKeys::DrwBrokenThickness)
    KIV_KEY_PROPERTY(_breakoutThickness, unsigned int, KivDrwKeys::DrwBreakoutThickness)
    KIV_KEY_PROPERTY(_skinThickness, unsigned int, KivDrwKeys::DrwSkinThickness)
};
