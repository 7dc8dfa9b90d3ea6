#include "Dialog/KivDlgLock.h"

#include "Base/KivTextCatalogue.h"
#include "Settings/KivSettingRepository.h"

#include <algorithm>

namespace {

constexpr auto Say = &KivTextCatalogue::FrameworkText;

// Where the lock is may have changed; what the record says of the value holds.
void TakeLock(const KivSettingRepository& repository, KivSettingInfo& info)
{
    KivSettingInfo now;
    repository.GetInfo(info.key.ConvertToChar(), &now, 0);
    info.locked = now.locked;
    info.lockedHere = now.lockedHere;
    info.canLock = now.canLock;
    info.lockLayer = now.lockLayer;
    info.lockFile = now.lockFile;
    info.lockLine = now.lockLine;
    info.lockReason = now.lockReason;
}

} // namespace

KivDlgLock::KivDlgLock(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                       unsigned long style)
    : KivClass(parent, name, style), _info(info)
{}

KivDlgLock::~KivDlgLock()
{
    if (!IsLocked()) return;
    for (const KivWeakPtr<KivDialog>& dialog : _associated) {
        if (dialog && dialog->GetLock() == this) dialog->_lockedFor = GetReason();
    }
}

void KivDlgLock::SetInfo(const KivSettingInfo& info)
{
    _info = info;
    Changed();
    for (const KivWeakPtr<KivDialog>& dialog : _associated) {
        if (dialog) dialog->EnablingChanged();
    }
}

bool KivDlgLock::Opens() const
{
    return _info.lockedHere ||
           std::any_of(_info.companions.begin(), _info.companions.end(),
                       [](const KivSettingInfo& companion) { return companion.lockedHere; });
}

bool KivDlgLock::IsSetHere() const
{
    return _info.setHere || std::any_of(_info.companions.begin(), _info.companions.end(),
                                        [](const KivSettingInfo& companion) { return companion.setHere; });
}

bool KivDlgLock::Toggle()
{
    KivSettingRepository* repository = KivSettingRepository::GetRepository(_info.repository.ConvertToChar());
    if (!IsSwitch() || !repository) return false;
    const bool locks = !Opens();
    bool changed = false;
    KivSettingInfo info = _info;
    const auto turn = [&](KivSettingInfo& part) {
        // One that an outer layer locks is closed already, and stays so.
        if (part.locked || part.lockedHere == locks) return;
        if (repository->SetLock(part.key.ConvertToChar(), locks) != S_OK) return;
        TakeLock(*repository, part);
        changed = true;
    };
    turn(info);
    for (KivSettingInfo& companion : info.companions) turn(companion);
    if (changed) SetInfo(info);
    return changed;
}

KivUnicodeString KivDlgLock::SettingName() const
{
    const KivDialog* control = GetAssociatedDialog();
    return control ? control->GetSpokenName() : KivUnicodeString(_info.key);
}

KivUnicodeString KivDlgLock::GetSpokenName() const
{
    if (IsSwitch()) {
        const KivUnicodeString name =
            Say(IsPartlyClosed() ? "PadlockSwitchPartly" : "PadlockSwitch", {SettingName()});
        return IsSetHere() ? Say("PadlockSwitchSet", {name}) : name;
    }
    if (IsPartlyClosed()) return Say("PadlockPartly", {SettingName()});
    return Say(IsClosed() ? "PadlockClosed" : "PadlockOpen", {SettingName()});
}

KivUnicodeString KivDlgLock::GetReason() const
{
    const KivDialog* control = GetAssociatedDialog();
    const KivUnicodeString shown = control ? control->GetShownValue() : KivUnicodeString();
    // What the control cannot show is said as it is stored.
    return shown.IsEmpty() ? _info.Message() : _info.Message(shown);
}

KivUnicodeString KivDlgLock::GetTip() const
{
    const char* const key = !IsSwitch() ? "PadlockTip" : Opens() ? "PadlockTipUnlock" : "PadlockTipLock";
    return Say(key, {SettingName(), GetReason()});
}

KivUnicodeString KivDlgLock::GetReport() const
{
    return Say("PadlockReport", {SettingName(), GetReason(), GetFacts()});
}

KivUnicodeString KivDlgLock::GetFacts() const
{
    KivUnicodeString facts;
    const auto add = [&](const KivSettingInfo& part) {
        if (!facts.IsEmpty()) facts.Append("\n");
        facts.Append(_describer ? _describer->facts(part) : KivUnicodeString(part.key));
    };
    add(_info);
    for (const KivSettingInfo& companion : _info.companions) add(companion);
    return facts;
}

KivUnicodeString KivDlgLock::GetCommand() const
{
    return _describer ? _describer->command(_info) : KivUnicodeString();
}

void KivDlgLock::AddAssociatedDialog(KivDialog* dialog)
{
    if (!dialog) return;
    _associated.emplace_back(dialog);
    dialog->_lock = this;
    dialog->_lockedFor.reset();
    dialog->EnablingChanged();
}

KivDialog* KivDlgLock::GetAssociatedDialog() const
{
    for (const KivWeakPtr<KivDialog>& dialog : _associated) {
        if (dialog) return dialog.Get();
    }
    return nullptr;
}

void KivDlgLock::GetAssociatedDialogSensitivity(unsigned long& sensitivity) const
{
    sensitivity = IsLocked() ? KivDlgDisabled : KivDlgEnabled;
}
