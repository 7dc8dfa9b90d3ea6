#include "KivDrwTabEditorBase.h"

#include "KivDrwCommitSettingEditor.h"
#include "KivDrwRepository.h"

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
    repository->SaveRepository(nullptr);
    AfterCommit();
}

void KivDrwTabEditorBase::CancelModification(KivSettingRepository*)
{
    KivSettingRepository* repository = KivDrwRepository();
    if (!repository) return;
    repository->Rollback();
    repository->Commit(0);
    AfterCancel();
}

void KivDrwTabEditorBase::ResetUserSettingsValue()
{
    KivSettingRepository* repository = KivDrwRepository();
    if (!repository) return;
    const std::vector<const char*> keys = KeysToReset();
    repository->ResetToAdminValues(keys.data(), static_cast<int>(keys.size()));
    AfterReset();
}
