#include "Pages/Kiv2DBaseOptManipFrm.h"

#include "KivDrwKinds.h"

namespace {

constexpr unsigned int kFilledCentered = KivDlgAttachAllSidesCentered & ~KivDlgAttachRight;

// The columns of the table of dimension handles.
enum Column : short { Icon, Kind, Creation, Gap, Modification };

} // namespace

// A kind of handle: its icon, its texts and its two switches.
struct Kiv2DBaseOptManipFrm::Handle {
    const char* icon;
    const char* iconName;
    const char* labelName;
    const char* creationName;
    KivPropertyOf<unsigned char>& creation;
    const char* modificationName;
    KivPropertyOf<unsigned char>& modification;
};

void Kiv2DBaseOptManipFrm::Build()
{
    if (WithFrameManipulator()) BuildManipulator();
    if (WithFrameDimManipulator()) BuildDimManipulators();
}

void Kiv2DBaseOptManipFrm::BuildManipulator()
{
    KivFormGroup manipulator = Group("frameManip", "I_Select");
    manipulator.Row("labelManipRefSize")
        .Spinner("editorManipRefSize", _manipRefSize, KivDrwKinds::SymbolLength);
    manipulator.Row().Check("checkManipZoom", _manipZoom);
}

void Kiv2DBaseOptManipFrm::BuildDimManipulators()
{
    const Handle handles[] = {
        {"S_DrwManipTranslation", "_labelIconORun", "_labelDimORun", "_checkDimORunCre", _dimORunCre,
         "_checkDimORunMod", _dimORunMod},
        {"S_DrwManipTranslation", "_labelIconBlank", "_labelDimBlank", "_checkDimBlankCre", _dimBlankCre,
         "_checkDimBlankMod", _dimBlankMod},
        {"S_DrwManipInsertText", "_labelIconBefore", "_labelDimBefore", "_checkDimBeforeCre", _dimBeforeCre,
         "_checkDimBeforeMod", _dimBeforeMod},
        {"S_DrwManipInsertText", "_labelIconAfter", "_labelDimAfter", "_checkDimAfterCre", _dimAfterCre,
         "_checkDimAfterMod", _dimAfterMod},
        {"S_DrwManipMoveValue", "_labelIconMoveValue", "_labelDimMoveValue", "_checkDimMoveValueCre",
         _dimMoveValueCre, "_checkDimMoveValueMod", _dimMoveValueMod},
        {"S_DrwManipMoveDimLine", "_labelIconMoveDimLine", "_labelDimMoveDimLine", "_checkDimMoveDimLineCre",
         _dimMoveDimLineCre, "_checkDimMoveDimLineMod", _dimMoveDimLineMod},
        {"S_DrwManipMove2dPart", "_labelIconMove2dPart", "_labelDimMove2dPart", "_checkDimMove2dPartCre",
         _dimMove2dPartCre, "_checkDimMove2dPartMod", _dimMove2dPartMod},
    };
    KivFormGroup dimension = Group("frameDim", "I_DrwDim");
    KivFormRow header = dimension.Row();
    header.At(Creation).Attached(KivDlgAttachAllSidesCentered).PlainLabel("_labelDimCreation");
    // Keeps the two columns of switches apart.
    header.Attached(KivDlgAttachAllSidesCentered).PlainLabel("_labelSpaceDim")->SetTitle("   ");
    header.Attached(KivDlgAttachAllSidesCentered).PlainLabel("_labelDimModification");
    for (const Handle& handle : handles) BuildHandle(dimension.Row(), handle);
}

void Kiv2DBaseOptManipFrm::BuildHandle(KivFormRow row, const Handle& handle)
{
    row.Attached(KivDlgAttachAllSidesCentered).Picture(handle.iconName)->SetIconName(handle.icon, "", "", "");
    row.Attached(kFilledCentered).PlainLabel(handle.labelName);
    for (KivDrwLockCheckButton* button :
         {row.At(Creation).Check(handle.creationName, handle.creation),
          row.At(Modification).Check(handle.modificationName, handle.modification)}) {
        if (!button) continue;
        button->SetTitle("");
        button->SetLongHelp(row.LabelHelp());
    }
}
