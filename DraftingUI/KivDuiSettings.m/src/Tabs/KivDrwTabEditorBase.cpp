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
    const Notify notify = AfterCommit();
    repository->SaveRepository(nullptr);
    if (notify) notify();
}

void KivDrwTabEditorBase::CancelModification(KivSettingRepository*)
{
    KivSettingRepository* repository = KivDrwRepository();
    if (!repository) return;
    const Notify notify = AfterCancel();
    repository->Rollback();
    repository->Commit(0);
    if (notify) notify();
}

void KivDrwTabEditorBase::ResetUserSettingsValue()
{
    KivSettingRepository* repository = KivDrwRepository();
    if (!repository) return;
    const Notify notify = AfterReset();
    const std::vector<const char*> keys = KeysToReset();
    repository->ResetToAdminValues(keys.data(), static_cast<int>(keys.size()));
    if (notify) notify();
}
