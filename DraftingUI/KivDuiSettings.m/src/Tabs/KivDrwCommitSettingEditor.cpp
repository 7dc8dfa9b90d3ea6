#include "Tabs/KivDrwCommitSettingEditor.h"

#include "KivDrwDefaults.h"
#include "KivDrwRepository.h"

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
