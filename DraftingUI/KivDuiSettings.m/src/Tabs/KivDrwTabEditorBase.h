#pragma once

#include "Options/KivEditor.h"

#include <vector>

// What the editors of all tabs but Administration do with the repository: each change is there already, so
// that a commit only saves, a cancel rolls back, and a reset drops the user's values of the tab's keys. The
// repository that the host passes is ignored; without one of their own they do nothing. Whoever is told of
// what they do may destroy them.
class KivDrwTabEditorBase : public KivEditor {
public:
    KivDrwTabEditorBase();
    ~KivDrwTabEditorBase() override;

    void CommitModification(KivSettingRepository* ignored) override;
    void CancelModification(KivSettingRepository* ignored) override;
    void ResetUserSettingsValue() override;

protected:
    virtual std::vector<const char*> KeysToReset() const = 0;
    // What a tab tells the sketcher afterwards, when the editor may be gone; null for nothing.
    using Notify = void (*)();
    virtual Notify AfterCommit() const { return nullptr; }
    virtual Notify AfterCancel() const { return nullptr; }
    virtual Notify AfterReset() const { return nullptr; }
};
