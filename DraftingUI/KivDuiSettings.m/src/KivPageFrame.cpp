#include "KivPageFrame.h"

KivPageFrame::KivPageFrame(KivDialog* parent, const KivString& name, const KivString& catalogue,
                           Refused refused)
    : KivClass(parent, name, KivDlgGridLayout), _form(*this, refused), _catalogue(catalogue)
{
    SetTextCatalogue(catalogue);
    _form.SetCallback(&KivPageFrame::Write);
}

KivFormGroup KivPageFrame::Group(const KivString& name, const KivString& icon)
{
    return Group(name, icon, _groups);
}

KivFormGroup KivPageFrame::Group(const KivString& name, const KivString& icon, short row)
{
    _groups = static_cast<short>(row + 1);
    return _form.Group(*this, name, icon, row);
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

KivString KivPageFrame::GetResourceFile(int level) const
{
    return level <= 0 ? _catalogue : KivDlgFrame::GetResourceFile(level - 1);
}
