#pragma once

#include "Component/KivVar.h"
#include "Form/KivPageFrame.h"
#include "Options/KivEditor.h"
#include "Pages/KivDrwOptAdminFrm.h"
#include "Settings/KivIASettingController.h"

// The editor of the Administration tab. Unlike the others it works through the controller of the drafting
// settings, and grays out or restores commands of the running application as they then say.
class KivDrwOptAdminEditor final : public KivClass<KivDrwOptAdminEditor, KivEditor> {
public:
    static constexpr const char* Name = "KivDrwOptAdminEditor";
    static constexpr const char* Framework = "DraftingUI";

    KivDrwOptAdminEditor();
    // Deliberate: only factories make editors.
    static KivBaseUnknown* CreateItself() { return nullptr; }

    void BuildEditor(KivEditorPage* page) override;
    void SetUserSettingsValue(KivSettingRepository* ignored) override;
    void CommitModification(KivSettingRepository* ignored) override;
    void CancelModification(KivSettingRepository* ignored) override;
    void ResetUserSettingsValue() override;

private:
    KivVar<KivIASettingController> _controller; // empty when the component is not there
    KivWeakPtr<KivDrwOptAdminFrm> _frame;       // belongs to the page, which may die first
};
