#include "Form/KivPageForm.h"

#include "Dialog/KivDlgFrame.h"

#include <algorithm>

KivFormGroup KivPageForm::Group(KivDialog& surface, const KivString& name, const KivString& icon, short row,
                                short column, short rows)
{
    auto* frame = new KivDlgToolsOptionsFrame(&surface, name, icon);
    frame->SetGridConstraints(row, column, rows, 1, KivDlgAttachAllSides);
    return {*this, *frame};
}

void KivPageForm::ShowLocks()
{
    for (const auto& binding : _bindings) binding->ShowLock();
}

void KivPageForm::Show()
{
    for (const auto& binding : _bindings) binding->Show();
}

void KivPageForm::Take(KivCommand* from)
{
    // Storing a value tells others, who may destroy the page.
    const KivWeakPtr<KivCommand> owner(&_owner);
    for (std::size_t i = 0; i < _bindings.size(); ++i) {
        KivControlBinding* const taken = _bindings[i].get();
        const bool isTaken = taken->Take(from);
        if (!owner) return;
        if (!isTaken) continue;
        for (const auto& binding : _bindings) {
            if (binding.get() != taken && binding->IsOf(taken->Property())) binding->Show();
        }
        return;
    }
}

void KivPageForm::Show(const KivProperty& property)
{
    for (const auto& binding : _bindings) {
        if (binding->IsOf(property)) binding->Show();
    }
}

void KivPageForm::Store(const KivProperties& properties)
{
    // A control that is not there stores nothing.
    const KivWeakPtr<KivCommand> owner(&_owner);
    for (KivProperty* property : properties) {
        const auto binding =
            std::find_if(_bindings.begin(), _bindings.end(), [property](const auto& candidate) {
                return candidate->IsAlive() && candidate->IsOf(*property);
            });
        if (binding == _bindings.end()) continue;
        property->Save();
        if (!owner) return; // whoever was told of it has destroyed the page
        (*binding)->ShowInForce();
    }
}

void KivPageForm::Read(const KivCommand* from)
{
    for (const auto& binding : _bindings) {
        if (binding->ReadIfSender(from)) return;
    }
}

bool KivPageForm::IsSender(const KivProperty& property, const KivCommand* from) const
{
    return std::any_of(_bindings.begin(), _bindings.end(), [&](const auto& binding) {
        return binding->IsOf(property) && binding->IsSender(from);
    });
}

void KivPageForm::ReadAll()
{
    for (const auto& binding : _bindings) binding->Read();
}

std::optional<KivSettingInfo> KivPageForm::RecordOf(const KivProperty& property) const
{
    KivSettingInfo info;
    const bool isRefused = property.GetInfo(info) < 0;
    if (isRefused && _refused == Refused::LeaveOut) return {};
    return info;
}

void KivPageForm::Add(std::unique_ptr<KivControlBinding> binding)
{
    // Those of windows that were closed.
    std::erase_if(_bindings, [](const auto& old) { return !old->IsAlive(); });
    _bindings.push_back(std::move(binding));
}

void KivPageForm::Connect(KivCommand* control, KivNotification* notification)
{
    _owner.AddAnalyseNotificationCB(control, notification, _callback, nullptr);
}
