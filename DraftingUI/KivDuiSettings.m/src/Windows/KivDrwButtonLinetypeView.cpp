#include "Windows/KivDrwButtonLinetypeView.h"

KivDrwButtonLinetypeView::KivDrwButtonLinetypeView(KivDialog* parent, const KivString& name)
    : KivClass(parent, name, "KivDrwButtonSettings")
{
    Build();
    Open();
}

void KivDrwButtonLinetypeView::Build()
{
    _form.SetCallback(&KivDrwButtonLinetypeView::OnChange);
    struct ViewKind {
        const char* label;
        const char* typeName;
        KivPropertyOf<unsigned int>& type;
        const char* typeKey;
        const char* thicknessName;
        KivPropertyOf<unsigned int>& thickness;
        const char* thicknessKey;
    };
    // Only the keys of the thicknesses begin with "Drw".
    const ViewKind kinds[] = {
        {"lblSection", "comboSectionLinetype", _sectionType, KivDrwKeys::SectionLinetype.name,
         "comboSectionThickness", _sectionThickness, KivDrwKeys::DrwSectionThickness.name},
        {"lblDetail", "comboDetailLinetype", _detailType, KivDrwKeys::DetailLinetype.name,
         "comboDetailThickness", _detailThickness, KivDrwKeys::DrwDetailThickness.name},
        {"lblBroken", "comboBrokenLinetype", _brokenType, KivDrwKeys::BrokenLinetype.name,
         "comboBrokenThickness", _brokenThickness, KivDrwKeys::DrwBrokenThickness.name},
        {"lblBreakout", "comboBreakoutLinetype", _breakoutType, KivDrwKeys::BreakoutLinetype.name,
         "comboBreakoutThickness", _breakoutThickness, KivDrwKeys::DrwBreakoutThickness.name},
        {"lblSkin", "comboSkinLinetype", _skinType, KivDrwKeys::SkinLinetype.name, "comboSkinThickness",
         _skinThickness, KivDrwKeys::DrwSkinThickness.name},
    };
    KivFormGroup group = _form.Group(*this, "frameButtonLinetype", "I_DrwFrontView");
    for (const ViewKind& kind : kinds) {
        KivFormRow row = group.Row(kind.label);
        row.LineType(kind.typeName, kind.type, _repository, kind.typeKey);
        row.LineWeight(kind.thicknessName, kind.thickness, _repository, kind.thicknessKey);
    }
}

void KivDrwButtonLinetypeView::OnChange(KivCommand*, KivNotification*, void*)
{
    _form.ReadAll();
}
