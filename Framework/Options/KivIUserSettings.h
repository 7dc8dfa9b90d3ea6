#pragma once

#include "Component/KivClass.h"
#include "Component/KivTie.h"

class KivEditorPage;
class KivSettingRepository;

inline constexpr IID IID_KivIUserSettings = KivMakeIID("KivIUserSettings");

// The interface by which the options manager drives a page editor; the operations are those of KivEditor.
class KivIUserSettings : public KivClass<KivIUserSettings, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivIUserSettings";
    static constexpr KivClassKind Kind = KivClassKind::Interface;

    virtual void BuildEditor(KivEditorPage* page) = 0;
    virtual void SetUserSettingsValue(KivSettingRepository* repository) = 0;
    virtual void CommitModification(KivSettingRepository* repository) = 0;
    virtual void CancelModification(KivSettingRepository* repository) = 0;
    virtual void CloseWindowFromEditor() = 0;
    virtual void ResetUserSettingsValue() = 0;

    template <class Implementation> class Forwarder : public KivTie<KivIUserSettings, Implementation> {
    public:
        using KivTie<KivIUserSettings, Implementation>::KivTie;
        void BuildEditor(KivEditorPage* page) override
        {
            if (Implementation* editor = this->Impl()) editor->BuildEditor(page);
        }
        void SetUserSettingsValue(KivSettingRepository* repository) override
        {
            if (Implementation* editor = this->Impl()) editor->SetUserSettingsValue(repository);
        }
        void CommitModification(KivSettingRepository* repository) override
        {
            if (Implementation* editor = this->Impl()) editor->CommitModification(repository);
        }
        void CancelModification(KivSettingRepository* repository) override
        {
            if (Implementation* editor = this->Impl()) editor->CancelModification(repository);
        }
        void CloseWindowFromEditor() override
        {
            if (Implementation* editor = this->Impl()) editor->CloseWindowFromEditor();
        }
        void ResetUserSettingsValue() override
        {
            if (Implementation* editor = this->Impl()) editor->ResetUserSettingsValue();
        }
    };
};
