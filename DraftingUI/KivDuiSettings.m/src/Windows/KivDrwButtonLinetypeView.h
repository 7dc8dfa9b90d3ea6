#pragma once

#include "Windows/KivDrwButtonDialog.h"

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
