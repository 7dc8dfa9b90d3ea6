#include "Windows/KivDrwButtonDialog.h"

KivDrwButtonDialog::KivDrwButtonDialog(KivDialog* parent, const KivString& name, const KivString& catalogue)
    : KivClass(parent, name, KivDlgModelessWindow)
{
    SetTextCatalogue(catalogue);
    _form.SetCallback(&KivDrwButtonDialog::Notification);
    AddAnalyseNotificationCB(this, GetDiaCloseNotification(), &KivDrwButtonDialog::Ok, nullptr);
    AddAnalyseNotificationCB(this, GetWindCloseNotification(), &KivDrwButtonDialog::Ok, nullptr);
}

void KivDrwButtonDialog::Open()
{
    // The controls have just taken their locks.
    for (KivProperty* property : _properties) property->Load();
    ShowValues();
    SetVisibility(KivDlgShown);
}

void KivDrwButtonDialog::InitValues()
{
    for (KivProperty* property : _properties) property->LoadDefault();
}

void KivDrwButtonDialog::Init()
{
    for (KivProperty* property : _properties) property->Load();
    _form.ShowLocks();
    ShowValues();
    _holdsChoices = false;
}

void KivDrwButtonDialog::Notification(KivCommand* from, KivNotification*, void*)
{
    ReadFrom(from);
    _holdsChoices = true;
}

void KivDrwButtonDialog::Ok(KivCommand*, KivNotification*, void*)
{
    for (KivProperty* property : _properties) property->Save();
    SetVisibility(KivDlgHidden);
    RequestDelayedDestruction();
}
