#include "KivDrwOptAdminEditor.h"

#include "Command/KivCommandHeader.h"
#include "KivIDrwDraftingSettingAtt.h"
#include "Options/KivIUserSettings.h"

#include <iterator>

namespace {

// A controller component of the drafting settings under one of its interfaces; empty when it cannot be had.
template <class Interface> KivVar<Interface> Controller()
{
    void* found = nullptr;
    KivInstantiateComponent("KivDrwDraftingSettingCtrl", Interface::ClassId(), &found);
    return KivVar<Interface>::Adopt(static_cast<Interface*>(static_cast<KivBaseUnknown*>(found)));
}

using Reader = HRESULT (KivIDrwDraftingSettingAtt::*)(unsigned char&);

// Which attribute, when set, makes which command unavailable.
constexpr struct {
    Reader attribute;
    const char* command;
} kCommands[] = {
    {&KivIDrwDraftingSettingAtt::GetLockUserDefault, "DrwStyle"},
    {&KivIDrwDraftingSettingAtt::GetPreventSetAsDefault, "DrwSetAsDefault"},
    {&KivIDrwDraftingSettingAtt::GetPreventSetAsDefault, "DrwResetDefaults"},
    {&KivIDrwDraftingSettingAtt::GetPreventBackgroundAccess, "KivDrwEditFrame"},
};

void Apply(bool prevented, const char* command)
{
    KivCommandHeader* header = KivCommandHeader::GetHeaderFromList(command, 0);
    if (!header) return;
    if (prevented && header->IsAvailable()) header->BecomeUnavailable();
    if (!prevented && !header->IsAvailable()) header->BecomeAvailable();
}

} // namespace

KivDrwOptAdminEditor::KivDrwOptAdminEditor() : _controller(Controller<KivIASettingController>()) {}

void KivDrwOptAdminEditor::CommitModification(KivSettingRepository*)
{
    const KivVar<KivIDrwDraftingSettingAtt> attributes = Controller<KivIDrwDraftingSettingAtt>();
    // Deliberate: without the attributes nothing is saved either.
    if (!attributes) return;
    for (const auto& [attribute, command] : kCommands) {
        unsigned char prevented = 0;
        (attributes.Get()->*attribute)(prevented);
        Apply(prevented != 0, command);
    }
    if (_controller) _controller->SaveRepository();
}

void KivDrwOptAdminEditor::CancelModification(KivSettingRepository*)
{
    if (_controller) _controller->Rollback();
}

void KivDrwOptAdminEditor::ResetUserSettingsValue()
{
    if (!_controller) return;
    const KivUnicodeString names[] = {
        "PreventFileNew",        "PreventSwitchStandard", "PreventUpdateStandard",  "PreventBackgroundAccess",
        "UseStyleCreateObjects", "CreateNewSheetFrom",    "LockUserDefault",        "PreventSetAsDefault",
        "DisplayResetButton",    "PreventGenViewStyle",   "PreventDimDriving3DCstr"};
    KivVariant* variant = BuildSafeArrayVariant(names, std::ssize(names));
    if (!variant) return;
    _controller->ResetToAdminValuesByName(*variant);
    FreeVariantSafeArray(variant);
}

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptAdminEditor, CreateTIEKivIUserSettingsKivDrwOptAdminEditor,
                  KivIUserSettings, KivDrwOptAdminEditor)
