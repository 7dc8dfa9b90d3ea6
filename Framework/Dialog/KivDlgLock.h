#pragma once

#include "Dialog/KivDialog.h"
#include "Settings/KivSettingInfo.h"

#include <vector>

// A padlock: shows who governs a setting, and keeps the controls bound to it disabled while it is locked.
class KivDlgLock : public KivClass<KivDlgLock, KivDialog> {
public:
    static constexpr const char* Name = "KivDlgLock";
    KivDlgLock(KivDialog* parent, const KivString& name, const KivSettingInfo& info, unsigned long style);

    const KivSettingInfo& GetInfo() const { return _info; }
    // Another record of the same setting, after the administrator has changed its lock.
    void SetInfo(const KivSettingInfo& info);
    bool IsLocked() const { return _info.locked; }
    // Whether it looks closed: locked, or closed by the administrator who edits the layer.
    bool IsClosed() const { return _info.locked || _info.lockedHere; }
    // An administrator's, who locks and unlocks the setting for the users of the layer that he edits.
    bool IsSwitch() const { return _info.canLock; }
    // Turns the switch over in the repository's working state, the companions of the setting along with it.
    // False, and nothing changed, when it is none.
    bool Toggle();

    // The record in words.
    KivUnicodeString GetReason() const { return _info.Words(); }

    // From now on that object is disabled while the setting is locked.
    void AddAssociatedDialog(KivDialog* dialog);
    // The first of those objects that still exists; null when there is none.
    KivDialog* GetAssociatedDialog() const;
    // KivDlgDisabled when the setting is locked, else KivDlgEnabled; what the page asks for does not count.
    void GetAssociatedDialogSensitivity(unsigned long& sensitivity) const;

private:
    KivSettingInfo _info;
    std::vector<KivWeakPtr<KivDialog>> _associated;
};
