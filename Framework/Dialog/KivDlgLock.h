#pragma once

#include "Dialog/KivDialog.h"
#include "Settings/KivSettingInfo.h"

#include <vector>

// What the library that a setting belongs to says of it to whoever wants to change it elsewhere.
struct KivSettingDescriber {
    KivUnicodeString (*facts)(const KivSettingInfo& info);   // key, default, range and unit: one line
    KivUnicodeString (*command)(const KivSettingInfo& info); // the command line that gives what is in force
};

// A padlock: shows who governs a setting, and keeps the controls bound to it disabled while it is locked.
class KivDlgLock : public KivClass<KivDlgLock, KivDialog> {
public:
    static constexpr const char* Name = "KivDlgLock";
    KivDlgLock(KivDialog* parent, const KivString& name, const KivSettingInfo& info, unsigned long style);
    // What it kept disabled stays so: the setting is as locked as before.
    ~KivDlgLock() override;

    const KivSettingInfo& GetInfo() const { return _info; }
    // Another record of the same setting, after the administrator has changed its lock.
    void SetInfo(const KivSettingInfo& info);
    bool IsLocked() const { return _info.locked; }
    // Whether it looks closed: locked, or closed by the administrator who edits the layer. The setting's own
    // lock disables the controls, so it looks closed then; else it is closed in part when only some of what
    // it stands for is, such as one component of a color.
    bool IsClosed() const { return IsLocked() || (_info.lockedHere && !_info.IsPartlyClosed()); }
    bool IsPartlyClosed() const { return !IsLocked() && _info.IsPartlyClosed(); }
    // An administrator's, who locks and unlocks the setting for the users of the layer that he edits.
    bool IsSwitch() const { return _info.canLock; }
    // Whether the layer that the administrator edits gives the value, or a part of it.
    bool IsSetHere() const;
    // Whether pressing the switch opens it: as soon as the edited layer locks some part.
    bool Opens() const;
    // Turns the switch over in the repository's working state, the companions of the setting along with it.
    // False, and nothing changed, when it is none or the repository refuses.
    bool Toggle();

    // The setting and its state: "Display grid, locked by the administrator".
    KivUnicodeString GetSpokenName() const override;
    // The record in words, with the value as the control shows it.
    KivUnicodeString GetReason() const;
    // The setting, the reason and, for a switch, what pressing it does.
    KivUnicodeString GetTip() const override;
    // The setting, the reason and the facts, for a person to pass on.
    KivUnicodeString GetReport() const;
    // A describer outlives the padlock; without one the facts are the keys, and there is no command.
    void SetDescriber(const KivSettingDescriber& describer) { _describer = &describer; }
    KivUnicodeString GetFacts() const override;
    KivUnicodeString GetCommand() const override;
    // Whether its words change with what the control shows.
    bool SpeaksOfValue() const { return IsClosed() || IsPartlyClosed(); }

    // From now on that object is disabled while the setting is locked.
    void AddAssociatedDialog(KivDialog* dialog);
    // The first of those objects that still exists; null when there is none.
    KivDialog* GetAssociatedDialog() const;
    // KivDlgDisabled when the setting is locked, else KivDlgEnabled; what the page asks for does not count.
    void GetAssociatedDialogSensitivity(unsigned long& sensitivity) const;

private:
    KivUnicodeString SettingName() const;

    KivSettingInfo _info;
    const KivSettingDescriber* _describer = nullptr;
    std::vector<KivWeakPtr<KivDialog>> _associated;
};
