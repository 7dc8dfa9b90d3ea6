#pragma once

#include "Component/KivClass.h"

class KivEditorPage;
class KivSettingRepository;

// The base of page editors: the object behind one page of the options dialog. Each operation does nothing
// until an editor overrides it.
class KivEditor : public KivClass<KivEditor, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivEditor";
    static constexpr KivClassKind Kind = KivClassKind::MainClass;

    // Builds the page's widgets. The page belongs to the dialog and may die before the editor.
    virtual void BuildEditor(KivEditorPage*) {}
    // Fills them with the settings in force; may be called again at any time.
    virtual void SetUserSettingsValue(KivSettingRepository*) {}
    // Returns the page's settings to the administrator's values; the page is filled again by the caller.
    virtual void ResetUserSettingsValue() {}
    // Makes the changes last, or takes them back.
    virtual void CommitModification(KivSettingRepository*) {}
    virtual void CancelModification(KivSettingRepository*) {}
    // Told when the dialog's window is closed, before the page goes.
    virtual void CloseWindowFromEditor() {}
};
