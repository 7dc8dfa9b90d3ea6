#pragma once

// Sees to it that the settings were gathered and committed once before a page is shown, so that a cancel
// returns to what the user saw when the dialog was opened.
class KivDrwCommitSettingEditor {
public:
    // 1 when it has just been done; 0 when it was done before or could not be.
    static int InitializeForCommit();
    // The next editor does it again.
    static void SetCommitToFalse();

private:
    static inline bool _IsCommitDone = false;
};
