#pragma once

#include "Dialog/KivDlgDialog.h"
#include "Form/KivPageFrame.h"
#include "Form/KivPageSetting.h"

// The Annotation page: snapping of texts and leaders, moving of annotations, dittos, balloons, tables. Knows
// no store: a frame derived from it binds the accessors.
class Kiv2DBaseOptAnnotFrm : public KivClass<Kiv2DBaseOptAnnotFrm, KivPageFrame> {
    using Self = Kiv2DBaseOptAnnotFrm;

public:
    static constexpr const char* Name = "Kiv2DBaseOptAnnotFrm";
    Kiv2DBaseOptAnnotFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name, Name) {}

    void Build() override;

    // The snapping button was pressed: opens another window with the choice of the snap mode.
    void NotifPush(KivCommand* from, KivNotification* notification, void* data);
    // A window of the page was closed, in either way: it is destroyed when the event is over. Nothing for any
    // other sender.
    void CloseDlg(KivCommand* from, KivNotification* notification, void* data);
    // Fills the window that was opened last; nothing without one.
    void BuildDlgSnap();

    KIV_PAGE_SETTING(unsigned char, _textAlongRef, SetTextAlongRef, GetTextAlongRef, GetTextAlongRefInfo)
    KIV_PAGE_SETTING(unsigned char, _leaderTextNormal, SetLeaderTextNormal, GetLeaderTextNormal,
                     GetLeaderTextNormalInfo)
    KIV_PAGE_SETTING(unsigned char, _leaderGDTNormal, SetLeaderGDTNormal, GetLeaderGDTNormal,
                     GetLeaderGDTNormalInfo)
    KIV_PAGE_SETTING(unsigned char, _snap, SetSnap, GetSnap, GetSnapInfo)
    KIV_PAGE_SETTING(unsigned char, _dittoWithFixSize, SetDittoWithFixSize, GetDittoWithFixSize,
                     GetDittoWithFixSizeInfo)
    KIV_PAGE_SETTING(unsigned char, _dittoPreventManip, SetDittoPreventManip, GetDittoPreventManip,
                     GetDittoPreventManipInfo)
    KIV_PAGE_SETTING(unsigned char, _dittoPreventScale, SetDittoPreventScale, GetDittoPreventScale,
                     GetDittoPreventScaleInfo)
    KIV_PAGE_SETTING(unsigned char, _balloon3DAssoc, SetBalloon3DAssoc, GetBalloon3DAssoc,
                     GetBalloon3DAssocInfo)
    KIV_PAGE_SETTING(unsigned char, _recomputeTable, SetRecomputeTable, GetRecomputeTable,
                     GetRecomputeTableInfo)
    KIV_PAGE_SETTING(unsigned char, _preventTableSplit, SetPreventTableSplit, GetPreventTableSplit,
                     GetPreventTableSplitInfo)
    KIV_PAGE_SETTING(int, _balloon3DAssocMod, SetBalloon3DAssocMod, GetBalloon3DAssocMod,
                     GetBalloon3DAssocModInfo)
    KIV_PAGE_SETTING(int, _snapMod, SetSnapMod, GetSnapMod, GetSnapModInfo)

private:
    void BuildMove();
    void BuildBalloon();

    KivWeakPtr<KivDlgPushButton> _snapButton;
    KivWeakPtr<KivDlgDialog> _snapWindow; // the last one
};
