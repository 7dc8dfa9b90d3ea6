#pragma once

#include "Base/KivResult.h"

// The general settings of a drafting application, as other applications read them. Switches are 0 or 1,
// whatever is stored. Lengths are millimeters, angles degrees, color components usually 0 to 255: these and
// the numbers of parts are what is stored, be it fit or not. Every accessor answers S_OK.
class KivDraftingSettings {
public:
    virtual ~KivDraftingSettings() = default;

    virtual HRESULT GetShowRuler(unsigned char& shown) = 0;
    virtual HRESULT GetDisplayGrid(unsigned char& shown) = 0;
    virtual HRESULT GetSnapToPoint(unsigned char& snapping) = 0;
    // Whether the vertical grid has a spacing and graduation of its own.
    virtual HRESULT GetAllowDistortions(unsigned char& allowed) = 0;
    virtual HRESULT GetPrimarySpaceH(double& spacing) = 0;
    virtual HRESULT GetPrimarySpaceV(double& spacing) = 0;
    // Into how many parts a primary space is divided.
    virtual HRESULT GetGraduationH(int& parts) = 0;
    virtual HRESULT GetGraduationV(int& parts) = 0;
    virtual HRESULT GetSheetColor(int& red, int& green, int& blue) = 0;
    virtual HRESULT GetSheetColorGraduated(unsigned char& graduated) = 0;
    virtual HRESULT GetDetailColor(int& red, int& green, int& blue) = 0;
    virtual HRESULT GetDetailColorGraduated(unsigned char& graduated) = 0;
    // What the tree lists.
    virtual HRESULT GetDisplayParameter(unsigned char& shown) = 0;
    virtual HRESULT GetDisplayRelation(unsigned char& shown) = 0;
    virtual HRESULT Get2DAxisDisplay(unsigned char& shown) = 0;
    // Whether the axis of a view grows and shrinks with the zoom.
    virtual HRESULT Get2DAxisZoom(unsigned char& zoomed) = 0;
    virtual HRESULT Get2DAxisLength(double& length) = 0;
    virtual HRESULT GetHideWhenStartWkb(unsigned char& hidden) = 0;
    virtual HRESULT GetRotationSnapAngle(double& angle) = 0;
    virtual HRESULT GetRotationAutoSnap(unsigned char& snapping) = 0;
};
