#include "Windows/KivDrwButtonGenFil.h"

KivDrwButtonGenFil::KivDrwButtonGenFil(KivDialog* parent, const KivString& name)
    : KivClass(parent, name, "KivDrwButtonGen")
{
    Build();
    Open();
}

void KivDrwButtonGenFil::Build()
{
    const KivSettingKind& kind = _representation.Kind();
    const KivDrwLockFrame* frame = _form.Group(*this, "frameButtonGenFil", "I_DrwFrontView")
                                       .Radios("frameRadioGenFil", _representation, kind);
    // They were created in another order than they stand, deliberately: each stands where its number says.
    for (const KivSettingChoice& choice : kind.Choices()) {
        frame->GetDialog()
            ->FindDialog(choice.name)
            ->SetGridConstraints(static_cast<short>(choice.value - 1), 0, 1, 1, KivDlgAttachAllSides);
    }
}
