#include "KivDrwOptAdminEditor.h"

#include "Command/KivCommandHeader.h"
#include "KivDrwSettingController.h"
#include "KivIDrwDraftingSettingAtt.h"
#include "Options/KivEditorPage.h"
#include "Options/KivIUserSettings.h"

#include <iterator>
#include <new>

namespace {

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

KivDrwOptAdminEditor::KivDrwOptAdminEditor() : _controller(KivDrwSettingController<KivIASettingController>())
{}

void KivDrwOptAdminEditor::BuildEditor(KivEditorPage* page)
{
    // Without its controller the tab stays empty.
    if (!_controller) return;
    auto* frame = new (std::nothrow) KivDrwOptAdminFrm(page, kKivDrwFrameName);
    _frame = frame;
    if (frame) frame->Build();
}

void KivDrwOptAdminEditor::SetUserSettingsValue(KivSettingRepository*)
{
    if (_frame) _frame->Initialize();
}

void KivDrwOptAdminEditor::CommitModification(KivSettingRepository*)
{
    const KivVar<KivIDrwDraftingSettingAtt> attributes = KivDrwSettingController<KivIDrwDraftingSettingAtt>();
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
#define KIV_ATTRIBUTE(T, attribute, Set, Get, GetInfo, settingKey) #attribute,
#include "KivDrwDraftingAttributes.def"
    };
    KivVariant* variant = BuildSafeArrayVariant(names, std::ssize(names));
    if (!variant) return;
    _controller->ResetToAdminValuesByName(*variant);
    FreeVariantSafeArray(variant);
}

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptAdminEditor, CreateTIEKivIUserSettingsKivDrwOptAdminEditor,
                  KivIUserSettings, KivDrwOptAdminEditor)
