#include "Form/KivPageFrame.h"

#include <utility>

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

KivFormGroup KivPageFrame::Group(const KivString& name, const KivString& icon, short row, short column,
                                 short rows)
{
    _groups = static_cast<short>(row + rows);
    return _form.Group(*this, name, icon, row, column, rows);
}

void KivPageFrame::Initialize()
{
    for (KivProperty* property : _properties) property->Load();
    if (std::exchange(_isShown, true)) _form.ShowLocks();
    UpdateWidgets();
}

void KivPageFrame::UpdateWidgets()
{
    _form.Show();
    _rules.Apply();
}

void KivPageFrame::Write(KivCommand* from, KivNotification*, void*)
{
    const KivWeakPtr<KivPageFrame> self(this);
    _form.Take(from);
    if (self) _rules.Apply();
}

KivString KivPageFrame::GetResourceFile(int level) const
{
    return level <= 0 ? _catalogue : KivDlgFrame::GetResourceFile(level - 1);
}
