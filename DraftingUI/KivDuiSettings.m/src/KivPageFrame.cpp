#include "KivPageFrame.h"

KivPageFrame::KivPageFrame(KivDialog* parent, const KivString& name, const KivString& catalogue)
    : KivClass(parent, name, KivDlgGridLayout)
{
    SetTextCatalogue(catalogue);
}

void KivPageFrame::Initialize()
{
    for (KivBoundValue* value : _values) value->Load();
    _form.ShowLocks();
    UpdateWidgets();
}

void KivPageFrame::UpdateWidgets()
{
    _form.Show();
}

void KivPageFrame::Write(KivCommand* from, KivNotification*, void*)
{
    _form.Take(from);
}
