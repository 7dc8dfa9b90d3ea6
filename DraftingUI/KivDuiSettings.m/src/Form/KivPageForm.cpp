#include "Form/KivPageForm.h"

#include "Dialog/KivDlgToolsOptionsFrame.h"

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
    for (const auto& row : _rows) row->ShowLock();
}

void KivPageForm::Show()
{
    for (const auto& row : _rows) row->Show();
}

void KivPageForm::Take(KivCommand* from)
{
    // Storing a value tells others, who may destroy the page.
    const KivWeakPtr<KivCommand> owner(&_owner);
    for (std::size_t i = 0; i < _rows.size(); ++i) {
        KivPageRow* const taken = _rows[i].get();
        const bool isTaken = taken->Take(from);
        if (!owner) return;
        if (!isTaken) continue;
        for (const auto& row : _rows) {
            if (row.get() != taken && row->IsOf(taken->Property())) row->Show();
        }
        return;
    }
}

void KivPageForm::Show(const KivProperty& property)
{
    for (const auto& row : _rows) {
        if (row->IsOf(property)) row->Show();
    }
}

void KivPageForm::Store(const KivProperties& properties)
{
    // A control that is not there stores nothing.
    const KivWeakPtr<KivCommand> owner(&_owner);
    for (KivProperty* property : properties) {
        const auto row = std::find_if(_rows.begin(), _rows.end(), [property](const auto& candidate) {
            return candidate->IsAlive() && candidate->IsOf(*property);
        });
        if (row == _rows.end()) continue;
        property->Save();
        if (!owner) return; // whoever was told of it has destroyed the page
        (*row)->ShowInForce();
    }
}

void KivPageForm::Read(const KivCommand* from)
{
    for (const auto& row : _rows) {
        if (row->ReadIfSender(from)) return;
    }
}

bool KivPageForm::IsSender(const KivProperty& property, const KivCommand* from) const
{
    return std::any_of(_rows.begin(), _rows.end(),
                       [&](const auto& row) { return row->IsOf(property) && row->IsSender(from); });
}

void KivPageForm::ReadAll()
{
    for (const auto& row : _rows) row->Read();
}

bool KivPageForm::LeavesOut(const KivProperty& property) const
{
    KivSettingInfo info;
    return _refused == Refused::LeaveOut && property.GetInfo(info) < 0;
}

void KivPageForm::Add(std::unique_ptr<KivPageRow> row)
{
    // Those of windows that were closed.
    std::erase_if(_rows, [](const auto& old) { return !old->IsAlive(); });
    _rows.push_back(std::move(row));
}

void KivPageForm::Connect(KivCommand* control, KivNotification* notification)
{
    _owner.AddAnalyseNotificationCB(control, notification, _callback, nullptr);
}
