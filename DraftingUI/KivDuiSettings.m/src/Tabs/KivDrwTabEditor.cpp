#include "Tabs/KivDrwTabEditor.h"

#include "KivDrwDefaults.h"
#include "KivDrwSettingAccess.h"

int KivDrwCommitSettingEditor::InitializeForCommit()
{
    if (_IsCommitDone) return 0;
    if (ResetAndWriteSettings(0) == 0) return 0;
    _IsCommitDone = true;
    KivDrwRepository()->Commit(1);
    return 1;
}

void KivDrwCommitSettingEditor::SetCommitToFalse()
{
    _IsCommitDone = false;
}

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
