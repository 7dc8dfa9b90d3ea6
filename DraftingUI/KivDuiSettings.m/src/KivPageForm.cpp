#include "KivPageForm.h"

#include "Dialog/KivDlgToolsOptionsFrame.h"
#include "KivPageFrame.h"

KivFormGroup KivPageForm::Group(const KivString& name, const KivString& icon)
{
    auto* frame = new KivDlgToolsOptionsFrame(&_page, name, icon);
    frame->SetGridConstraints(_groups++, 0, 1, 1, KivDlgAttachAllSides);
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
    for (const auto& row : _rows) {
        if (row->Take(from)) return;
    }
}

void KivPageForm::Connect(KivCommand* control, KivNotification* notification)
{
    _page.AddAnalyseNotificationCB(control, notification, &KivPageFrame::Write, nullptr);
}
