#include "Form/KivControlBinding.h"

#include "Settings/KivDrwSettingDescriber.h"

KivControlBinding::KivControlBinding(KivDrwLockDialog* control, KivProperty& property, Rule rule)
    : _control(control), _property(property), _rule(std::move(rule))
{
    if (control) control->SetDescriber(KivDrwSettingDescriber);
}

void KivControlBinding::ShowLock()
{
    if (_control) _control->SetInfo(_property.Info());
}

void KivControlBinding::ShowInForce()
{
    ShowLock();
    _property.Load();
    Show();
}

bool KivControlBinding::IsSender(const KivCommand* from) const
{
    return _control && from && _control->GetDialog() == from;
}

bool KivControlBinding::ReadIfSender(const KivCommand* from)
{
    if (!IsSender(from)) return false;
    if (Read() && _control) {
        // The padlock must not say that the value is as somebody else has left it.
        KivSettingInfo chosen = _property.Info();
        chosen.origin = KivSettingInfo::Origin::User;
        chosen.initial = false;
        _control->SetInfo(chosen);
    }
    if (_rule) _rule();
    return true;
}

bool KivControlBinding::Take(KivCommand* from)
{
    if (!IsSender(from)) return false;
    // No user could have sent it when it is locked: another property was mirrored here, or the lock has
    // arrived meanwhile. The store would refuse it.
    if (_property.Info().locked || !Read()) {
        ShowInForce();
        return true;
    }
    // Saving tells others, who may destroy the page and this binding with it.
    const KivWeakPtr<KivDrwLockDialog> control(_control.Get());
    _property.Save();
    if (!control) return true;
    ShowInForce();
    if (_rule) _rule();
    return true;
}
