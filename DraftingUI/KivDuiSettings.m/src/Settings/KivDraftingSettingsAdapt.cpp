#include "KivDraftingSettingsAdapt.h"

#include "KivDrwSettingAccess.h"
#include "Settings/KivDrwStoredColor.h"

HRESULT KivDraftingSettingsAdapt::GetShowRuler(unsigned char& shown)
{
    return KivDrwGet(_repository, KivDrwKeys::Ruler, shown);
}
HRESULT KivDraftingSettingsAdapt::GetDisplayGrid(unsigned char& shown)
{
    return KivDrwGet(_repository, KivDrwKeys::Drw_settings_GridDisplay, shown);
}
HRESULT KivDraftingSettingsAdapt::GetSnapToPoint(unsigned char& snapping)
{
    return KivDrwGet(_repository, KivDrwKeys::Drw_settings_GridSnapPt, snapping);
}
HRESULT KivDraftingSettingsAdapt::GetAllowDistortions(unsigned char& allowed)
{
    return KivDrwGet(_repository, KivDrwKeys::Drw_settings_AllowDistortions, allowed);
}
HRESULT KivDraftingSettingsAdapt::GetPrimarySpaceH(double& spacing)
{
    return KivDrwGet(_repository, KivDrwKeys::Drw_settings_GridPrimarySpacing, spacing);
}
HRESULT KivDraftingSettingsAdapt::GetPrimarySpaceV(double& spacing)
{
    return KivDrwGet(_repository, KivDrwKeys::Drw_settings_GridVPrimarySpacing, spacing);
}
HRESULT KivDraftingSettingsAdapt::GetGraduationH(int& parts)
{
    return KivDrwGet(_repository, KivDrwKeys::Drw_settings_GridSecondaryStep, parts);
}
HRESULT KivDraftingSettingsAdapt::GetGraduationV(int& parts)
{
    return KivDrwGet(_repository, KivDrwKeys::Drw_settings_GridVSecondaryStep, parts);
}
HRESULT KivDraftingSettingsAdapt::GetSheetColor(int& red, int& green, int& blue)
{
    kKivDrwSheetColor.Read(_repository, red, green, blue);
    return S_OK;
}
HRESULT KivDraftingSettingsAdapt::GetSheetColorGraduated(unsigned char& graduated)
{
    return KivDrwGet(_repository, KivDrwKeys::GraduatedColor, graduated);
}
HRESULT KivDraftingSettingsAdapt::GetDetailColor(int& red, int& green, int& blue)
{
    kKivDrwDetailColor.Read(_repository, red, green, blue);
    return S_OK;
}
HRESULT KivDraftingSettingsAdapt::GetDetailColorGraduated(unsigned char& graduated)
{
    return KivDrwGet(_repository, KivDrwKeys::GraduatedColorDitto, graduated);
}
HRESULT KivDraftingSettingsAdapt::GetDisplayParameter(unsigned char& shown)
{
    return KivDrwGet(_repository, KivDrwKeys::TreeParameters, shown);
}
HRESULT KivDraftingSettingsAdapt::GetDisplayRelation(unsigned char& shown)
{
    return KivDrwGet(_repository, KivDrwKeys::TreeFormulas, shown);
}
HRESULT KivDraftingSettingsAdapt::Get2DAxisDisplay(unsigned char& shown)
{
    return KivDrwGet(_repository, KivDrwKeys::ViewReferential, shown);
}
HRESULT KivDraftingSettingsAdapt::Get2DAxisZoom(unsigned char& zoomed)
{
    return KivDrwGet(_repository, KivDrwKeys::ViewRefZoom, zoomed);
}
HRESULT KivDraftingSettingsAdapt::Get2DAxisLength(double& length)
{
    return KivDrwGet(_repository, KivDrwKeys::ViewAxisSize, length);
}
HRESULT KivDraftingSettingsAdapt::GetHideWhenStartWkb(unsigned char& hidden)
{
    return KivDrwGet(_repository, KivDrwKeys::HideWhenStartWkb, hidden);
}
HRESULT KivDraftingSettingsAdapt::GetRotationSnapAngle(double& angle)
{
    return KivDrwGet(_repository, KivDrwKeys::RotSnapAngle, angle);
}
HRESULT KivDraftingSettingsAdapt::GetRotationAutoSnap(unsigned char& snapping)
{
    return KivDrwGet(_repository, KivDrwKeys::RotSnapAuto, snapping);
}
