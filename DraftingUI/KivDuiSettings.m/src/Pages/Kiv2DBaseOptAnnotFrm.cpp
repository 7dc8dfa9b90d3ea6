#include "Pages/Kiv2DBaseOptAnnotFrm.h"

#include "KivDrwKinds.h"

namespace {

constexpr unsigned long kComboStyle = 0x40000;

} // namespace

void Kiv2DBaseOptAnnotFrm::Build()
{
    KivFormGroup creation = Group("frameAnnotCreation", "I_DrwText");
    creation.Row().Check("TextSnappingOn", _textAlongRef);
    creation.Row().Label("labelSnappingOn");
    creation.Row().Check("TextLeadSnappingOn", _leaderTextNormal);
    creation.Row().Check("GDTSnappingOn", _leaderGDTNormal);

    BuildMove();

    KivFormGroup ditto = Group("frameDittoInv", "I_DrwDitto");
    ditto.Row().Check("DittoInvViewScale", _dittoWithFixSize);
    ditto.Row().Check("DittoDrag", _dittoPreventManip);
    ditto.Row().Check("DittoScale", _dittoPreventScale);

    BuildBalloon();

    KivFormGroup table = Group("frmTable", "I_DrwTable");
    table.Row().Check("chkTableResize", _recomputeTable);
    table.Row().Check("chkTableAutoSplit", _preventTableSplit);
}

void Kiv2DBaseOptAnnotFrm::BuildMove()
{
    KivFormGroup move = Group("frameAnnotMove", "I_Select");
    KivFormRow config = move.Part("frmConfigSnap").Row();
    config.Spacer("invLock3"); // puts the button in line with the check button below it
    _snapButton = config.Push("pushAnnotActiveSnap");
    AddAnalyseNotificationCB(_snapButton.Get(), _snapButton->GetPushBActivateNotification(),
                             &Kiv2DBaseOptAnnotFrm::NotifPush, nullptr);
    move.Row().Check("AnnotActivSnap", _snap);
}

void Kiv2DBaseOptAnnotFrm::BuildBalloon()
{
    KivFormRow balloon = Group("frmBalloon", "I_DrwBalloon").Row();
    balloon.Check("chkBalAssoc", _balloon3DAssoc);
    // What a balloon shows of its part can be chosen only while balloons are associated with the 3D.
    _rules.AvailableWhile(
        [this] { return _balloon3DAssoc.cached != 0; },
        {balloon.Choice("combBalAssocMod", _balloon3DAssocMod, KivDrwKinds::BalloonText, kComboStyle)});
}

void Kiv2DBaseOptAnnotFrm::NotifPush(KivCommand* from, KivNotification*, void*)
{
    if (!from || from != _snapButton.Get()) return;
    auto* window = new KivDlgDialog(this, "annotSnap", KivDlgModelessWindow);
    _snapWindow = window;
    BuildDlgSnap();
    window->SetVisibility(KivDlgShown);
    AddAnalyseNotificationCB(window, window->GetDiaCloseNotification(), &Kiv2DBaseOptAnnotFrm::CloseDlg,
                             nullptr);
    AddAnalyseNotificationCB(window, window->GetWindCloseNotification(), &Kiv2DBaseOptAnnotFrm::CloseDlg,
                             nullptr);
}

void Kiv2DBaseOptAnnotFrm::BuildDlgSnap()
{
    if (!_snapWindow) return;
    _form.Group(*_snapWindow, "frameAnnotActivSnap", "")
        .Radios("frameRadioAnnotActivSnap", _snapMod, KivDrwKinds::SnapMode);
    _form.Show(_snapMod);
}

void Kiv2DBaseOptAnnotFrm::CloseDlg(KivCommand* from, KivNotification*, void*)
{
    // Also one that is not the last: each press has opened another.
    if (!from || from->GetParent() != this || !from->IsAKindOf(KivDlgDialog::Name)) return;
    from->RequestDelayedDestruction();
    if (from == _snapWindow.Get()) _snapWindow = nullptr;
}
