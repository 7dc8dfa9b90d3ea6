#pragma once

#include "Workbench/KivDraftingSettings.h"

class KivSettingRepository;

// Serves the general drafting settings from a repository, which its creator hands over; without one every
// accessor answers its default.
class KivDraftingSettingsAdapt : public KivDraftingSettings {
public:
    explicit KivDraftingSettingsAdapt(KivSettingRepository* repository = nullptr) : _repository(repository) {}

    HRESULT GetShowRuler(unsigned char& shown) override;
    HRESULT GetDisplayGrid(unsigned char& shown) override;
    HRESULT GetSnapToPoint(unsigned char& snapping) override;
    HRESULT GetAllowDistortions(unsigned char& allowed) override;
    HRESULT GetPrimarySpaceH(double& spacing) override;
    HRESULT GetPrimarySpaceV(double& spacing) override;
    HRESULT GetGraduationH(int& parts) override;
    HRESULT GetGraduationV(int& parts) override;
    // A component is the whole part of the stored one, times 255: 255 for 1.0, 0 for all between 0.0 and 1.0.
    HRESULT GetSheetColor(int& red, int& green, int& blue) override;
    HRESULT GetSheetColorGraduated(unsigned char& graduated) override;
    HRESULT GetDetailColor(int& red, int& green, int& blue) override;
    HRESULT GetDetailColorGraduated(unsigned char& graduated) override;
    HRESULT GetDisplayParameter(unsigned char& shown) override;
    HRESULT GetDisplayRelation(unsigned char& shown) override;
    HRESULT Get2DAxisDisplay(unsigned char& shown) override;
    HRESULT Get2DAxisZoom(unsigned char& zoomed) override;
    HRESULT Get2DAxisLength(double& length) override;
    HRESULT GetHideWhenStartWkb(unsigned char& hidden) override;
    HRESULT GetRotationSnapAngle(double& angle) override;
    HRESULT GetRotationAutoSnap(unsigned char& snapping) override;

private:
    KivSettingRepository* _repository; // not owned
};
