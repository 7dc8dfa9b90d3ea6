#include "KivPageForm.h"

#include "Dialog/KivDlgToolsOptionsFrame.h"

#include <algorithm>

KivFormGroup KivPageForm::Group(KivDialog& surface, const KivString& name, const KivString& icon, short row)
{
    auto* frame = new KivDlgToolsOptionsFrame(&surface, name, icon);
    frame->SetGridConstraints(row, 0, 1, 1, KivDlgAttachAllSides);
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
    const auto taken =
        std::find_if(_rows.begin(), _rows.end(), [&](const auto& row) { return row->Take(from); });
    if (taken == _rows.end()) return;
    for (const auto& row : _rows) {
        if (row != *taken && row->IsOf((*taken)->Value())) row->Show();
    }
}

void KivPageForm::ShowValue(const KivBoundValue& value)
{
    for (const auto& row : _rows) {
        if (row->IsOf(value)) row->Show();
    }
}

void KivPageForm::ReadAll()
{
    for (const auto& row : _rows) row->Read();
}

bool KivPageForm::LeavesOut(const KivBoundValue& value) const
{
    KivSettingInfo info;
    return _refused == Refused::LeaveOut && value.GetInfo(info) != S_OK;
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
