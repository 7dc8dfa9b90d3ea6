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

    // The record in words.
    KivUnicodeString GetReason() const { return _info.Words(); }

    // From now on that object is disabled while the setting is locked.
    void AddAssociatedDialog(KivDialog* dialog);
    // KivDlgDisabled when the setting is locked, else KivDlgEnabled; what the page asks for does not count.
    void GetAssociatedDialogSensitivity(unsigned long& sensitivity) const;

private:
    KivSettingInfo _info;
    std::vector<KivWeakPtr<KivDialog>> _associated;
};
