#include "Tabs/KivDrwTabEditorBase.h"

#include "KivDrwRepository.h"
#include "Tabs/KivDrwCommitSettingEditor.h"

KivDrwTabEditorBase::KivDrwTabEditorBase()
{
    KivDrwCommitSettingEditor::InitializeForCommit();
}

KivDrwTabEditorBase::~KivDrwTabEditorBase()
{
    KivDrwCommitSettingEditor::SetCommitToFalse();
}

void KivDrwTabEditorBase::CommitModification(KivSettingRepository*)
{
    KivSettingRepository* repository = KivDrwRepository();
    if (!repository) return;
    const Telling tell = AfterCommit();
    repository->SaveRepository(nullptr);
    if (tell) tell();
}

void KivDrwTabEditorBase::CancelModification(KivSettingRepository*)
{
    KivSettingRepository* repository = KivDrwRepository();
    if (!repository) return;
    const Telling tell = AfterCancel();
    repository->Rollback();
    repository->Commit(0);
    if (tell) tell();
}

void KivDrwTabEditorBase::ResetUserSettingsValue()
{
    KivSettingRepository* repository = KivDrwRepository();
    if (!repository) return;
    const Telling tell = AfterReset();
    const std::vector<const char*> keys = KeysToReset();
    repository->ResetToAdminValues(keys.data(), static_cast<int>(keys.size()));
    if (tell) tell();
}
