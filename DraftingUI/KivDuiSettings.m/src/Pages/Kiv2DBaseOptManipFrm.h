#pragma once

#include "Form/KivPageFrame.h"
#include "Form/KivPageSetting.h"

// The Manipulators page: size and zoom of the handles, and which of them dimensions offer while they are
// created and while they are changed. Knows no store: a frame derived from it binds the accessors and
// switches on the groups that its application has. Unlike on other pages, a control whose lock record is
// refused is not there, deliberately.
class Kiv2DBaseOptManipFrm : public KivClass<Kiv2DBaseOptManipFrm, KivPageFrame> {
    using Self = Kiv2DBaseOptManipFrm;

public:
    static constexpr const char* Name = "Kiv2DBaseOptManipFrm";
    Kiv2DBaseOptManipFrm(KivDialog* parent, const KivString& name)
        : KivClass(parent, name, Name, Refused::LeaveOut)
    {}

    void Build() override;

    KIV_PAGE_SETTING(double, _manipRefSize, SetManipRefSize, GetManipRefSize, GetManipRefSizeInfo)
    KIV_PAGE_SETTING(unsigned char, _manipZoom, SetManipZoom, GetManipZoom, GetManipZoomInfo)
    KIV_PAGE_SETTING(unsigned char, _dimORunCre, SetDimORunCre, GetDimORunCre, GetDimORunCreInfo)
    KIV_PAGE_SETTING(unsigned char, _dimORunMod, SetDimORunMod, GetDimORunMod, GetDimORunModInfo)
    KIV_PAGE_SETTING(unsigned char, _dimBlankCre, SetDimBlankCre, GetDimBlankCre, GetDimBlankCreInfo)
    KIV_PAGE_SETTING(unsigned char, _dimBlankMod, SetDimBlankMod, GetDimBlankMod, GetDimBlankModInfo)
    KIV_PAGE_SETTING(unsigned char, _dimBeforeCre, SetDimBeforeCre, GetDimBeforeCre, GetDimBeforeCreInfo)
    KIV_PAGE_SETTING(unsigned char, _dimBeforeMod, SetDimBeforeMod, GetDimBeforeMod, GetDimBeforeModInfo)
    KIV_PAGE_SETTING(unsigned char, _dimAfterCre, SetDimAfterCre, GetDimAfterCre, GetDimAfterCreInfo)
    KIV_PAGE_SETTING(unsigned char, _dimAfterMod, SetDimAfterMod, GetDimAfterMod, GetDimAfterModInfo)
    KIV_PAGE_SETTING(unsigned char, _dimMoveValueCre, SetDimMoveValueCre, GetDimMoveValueCre,
                     GetDimMoveValueCreInfo)
    KIV_PAGE_SETTING(unsigned char, _dimMoveValueMod, SetDimMoveValueMod, GetDimMoveValueMod,
                     GetDimMoveValueModInfo)
    KIV_PAGE_SETTING(unsigned char, _dimMoveDimLineCre, SetDimMoveDimLineCre, GetDimMoveDimLineCre,
                     GetDimMoveDimLineCreInfo)
    KIV_PAGE_SETTING(unsigned char, _dimMoveDimLineMod, SetDimMoveDimLineMod, GetDimMoveDimLineMod,
                     GetDimMoveDimLineModInfo)
    KIV_PAGE_SETTING(unsigned char, _dimMove2dPartCre, SetDimMove2dPartCre, GetDimMove2dPartCre,
                     GetDimMove2dPartCreInfo)
    KIV_PAGE_SETTING(unsigned char, _dimMove2dPartMod, SetDimMove2dPartMod, GetDimMove2dPartMod,
                     GetDimMove2dPartModInfo)

public:
    // 1 for each group that the application has.
    virtual int WithFrameManipulator() { return 0; }
    virtual int WithFrameDimManipulator() { return 0; }

private:
    struct Handle;
    void BuildManipulator();
    void BuildDimManipulators();
    void BuildHandle(KivFormRow row, const Handle& handle);
};
