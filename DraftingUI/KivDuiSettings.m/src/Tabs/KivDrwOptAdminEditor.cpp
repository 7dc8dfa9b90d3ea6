#include "Tabs/KivDrwOptAdminEditor.h"

#include "KivDrwWorkbench.h"
#include "KivIDrwDraftingSettingAtt.h"
#include "Options/KivEditorPage.h"

#include <iterator>
#include <new>

namespace {

// Whatever was decided, the commands are as the settings in force say.
void SwitchCommands()
{
    if (const auto attributes = KivDrwSettingController<KivIDrwDraftingSettingAtt>())
        KivDrwCommandAvailability::Apply(*attributes.Get());
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
    // A copy: who is told of a command or of a setting may destroy this editor.
    const KivVar<KivIASettingController> controller = _controller;
    KivDrwCommandAvailability::Apply(*attributes.Get());
    if (controller) controller->SaveRepository();
    SwitchCommands(); // the save takes what other programs have stored
}

void KivDrwOptAdminEditor::CancelModification(KivSettingRepository*)
{
    const KivVar<KivIASettingController> controller = _controller; // as above
    if (!controller) return;
    controller->Rollback();
    SwitchCommands();
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
    SwitchCommands();
}
