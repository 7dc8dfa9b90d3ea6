#pragma once

#include "Form/KivDrwPageAccessors.h"
#include "KivDrwSettingAccess.h"
#include "Pages/Kiv2DBaseOptManipFrm.h"

// The Manipulators page of the drafting workbench, bound to its settings.
class KivDrwOptManipFrm final : public KivClass<KivDrwOptManipFrm, Kiv2DBaseOptManipFrm> {
    using Base = Kiv2DBaseOptManipFrm;

public:
    static constexpr const char* Name = "KivDrwOptManipFrm";
    KivDrwOptManipFrm(KivDialog* parent, const KivString& name) : KivClass(parent, name) {}

    KIV_BIND_SETTING(KivDrwKeys::ManipRefSize, SetManipRefSize, GetManipRefSize, GetManipRefSizeInfo)
    KIV_BIND_SETTING(KivDrwKeys::ManipZoom, SetManipZoom, GetManipZoom, GetManipZoomInfo)
    KIV_BIND_SETTING(KivDrwKeys::ORunCre, SetDimORunCre, GetDimORunCre, GetDimORunCreInfo)
    KIV_BIND_SETTING(KivDrwKeys::ORunMod, SetDimORunMod, GetDimORunMod, GetDimORunModInfo)
    KIV_BIND_SETTING(KivDrwKeys::BlankingCre, SetDimBlankCre, GetDimBlankCre, GetDimBlankCreInfo)
    KIV_BIND_SETTING(KivDrwKeys::BlankingMod, SetDimBlankMod, GetDimBlankMod, GetDimBlankModInfo)
    KIV_BIND_SETTING(KivDrwKeys::BeforeCre, SetDimBeforeCre, GetDimBeforeCre, GetDimBeforeCreInfo)
    KIV_BIND_SETTING(KivDrwKeys::BeforeMod, SetDimBeforeMod, GetDimBeforeMod, GetDimBeforeModInfo)
    KIV_BIND_SETTING(KivDrwKeys::AfterCre, SetDimAfterCre, GetDimAfterCre, GetDimAfterCreInfo)
    KIV_BIND_SETTING(KivDrwKeys::AfterMod, SetDimAfterMod, GetDimAfterMod, GetDimAfterModInfo)
    KIV_BIND_SETTING(KivDrwKeys::MoveValueCre, SetDimMoveValueCre, GetDimMoveValueCre, GetDimMoveValueCreInfo)
    KIV_BIND_SETTING(KivDrwKeys::MoveValueMod, SetDimMoveValueMod, GetDimMoveValueMod, GetDimMoveValueModInfo)
    KIV_BIND_SETTING(KivDrwKeys::MoveDimLineCre, SetDimMoveDimLineCre, GetDimMoveDimLineCre,
                     GetDimMoveDimLineCreInfo)
    KIV_BIND_SETTING(KivDrwKeys::MoveDimLineMod, SetDimMoveDimLineMod, GetDimMoveDimLineMod,
                     GetDimMoveDimLineModInfo)
    KIV_BIND_SETTING(KivDrwKeys::Move2dPartCre, SetDimMove2dPartCre, GetDimMove2dPartCre,
                     GetDimMove2dPartCreInfo)
    KIV_BIND_SETTING(KivDrwKeys::Move2dPartMod, SetDimMove2dPartMod, GetDimMove2dPartMod,
                     GetDimMove2dPartModInfo)

    int WithFrameManipulator() override { return 1; }
    int WithFrameDimManipulator() override { return 1; }

private:
    KivSettingRepository* _repository = KivDrwRepository(); // may be null: the page then shows defaults
};
