#pragma once

#include "Form/KivDrwPageAccessors.h"
#include "KivDrwSettingAccess.h"
#include "Pages/Kiv2DBaseOptAnnotFrm.h"

// The Annotation page of the drafting workbench, bound to its settings.
class KivDrwOptAnnotFrm final : public KivClass<KivDrwOptAnnotFrm, Kiv2DBaseOptAnnotFrm> {
    using Base = Kiv2DBaseOptAnnotFrm;

public:
    static constexpr const char* Name = "KivDrwOptAnnotFrm";
    KivDrwOptAnnotFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name) {}

    KIV_BIND_SETTING(KivDrwKeys::DrwTextSnappingOn, SetTextAlongRef, GetTextAlongRef, GetTextAlongRefInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwTextLeadSnappingOn, SetLeaderTextNormal, GetLeaderTextNormal,
                     GetLeaderTextNormalInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwGDTSnappingOn, SetLeaderGDTNormal, GetLeaderGDTNormal,
                     GetLeaderGDTNormalInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwAnnotActivSnap, SetSnap, GetSnap, GetSnapInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwDittoInvViewScale, SetDittoWithFixSize, GetDittoWithFixSize,
                     GetDittoWithFixSizeInfo)
    KIV_BIND_SETTING(KivDrwKeys::KivDrwPreventDittoDrag, SetDittoPreventManip, GetDittoPreventManip,
                     GetDittoPreventManipInfo)
    KIV_BIND_SETTING(KivDrwKeys::KivDrwPreventDittoScale, SetDittoPreventScale, GetDittoPreventScale,
                     GetDittoPreventScaleInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwBalloonAssoc, SetBalloon3DAssoc, GetBalloon3DAssoc, GetBalloon3DAssocInfo)
    KIV_BIND_SETTING(KivDrwKeys::KivDrwResizeTableEdition, SetRecomputeTable, GetRecomputeTable,
                     GetRecomputeTableInfo)
    KIV_BIND_SETTING(KivDrwKeys::KivDrwTableAutoSplit, SetPreventTableSplit, GetPreventTableSplit,
                     GetPreventTableSplitInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwBalloonAssocMod, SetBalloon3DAssocMod, GetBalloon3DAssocMod,
                     GetBalloon3DAssocModInfo)
    KIV_BIND_SETTING(KivDrwKeys::DrwAnnotSnapMod, SetSnapMod, GetSnapMod, GetSnapModInfo)

private:
    KivSettingRepository* _repository = KivDrwRepository(); // may be null: the page then shows defaults
};
