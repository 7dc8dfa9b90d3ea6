#pragma once

#include "KivDraftingSettingsAdapt.h"

#include <limits>

// Readers that answer what a test says, and their defaults for the rest.
class SheetReaders : public KivDraftingSettingsAdapt {
public:
    static constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    static constexpr double kInfinite = std::numeric_limits<double>::infinity();
    static constexpr double kHuge = std::numeric_limits<double>::max();
    static constexpr double kTiny = std::numeric_limits<double>::denorm_min();

    double spacing = 100.0, spacingV = 100.0, axis = 30.0, angle = 15.0;
    int parts = 10, partsV = 10, component = 255;
    bool grid = true, distorted = false, graduated = false, rulers = true, always = false, snaps = true;

    HRESULT GetPrimarySpaceH(double& out) override { return Say(out, spacing); }
    HRESULT GetPrimarySpaceV(double& out) override { return Say(out, spacingV); }
    HRESULT Get2DAxisLength(double& out) override { return Say(out, axis); }
    HRESULT GetRotationSnapAngle(double& out) override { return Say(out, angle); }
    HRESULT GetGraduationH(int& out) override { return Say(out, parts); }
    HRESULT GetGraduationV(int& out) override { return Say(out, partsV); }
    HRESULT GetDisplayGrid(unsigned char& out) override { return Say(out, grid); }
    HRESULT GetAllowDistortions(unsigned char& out) override { return Say(out, distorted); }
    HRESULT GetSheetColorGraduated(unsigned char& out) override { return Say(out, graduated); }
    HRESULT GetShowRuler(unsigned char& out) override { return Say(out, rulers); }
    HRESULT GetRotationAutoSnap(unsigned char& out) override { return Say(out, always); }
    HRESULT GetSnapToPoint(unsigned char& out) override { return Say(out, snaps); }
    HRESULT GetSheetColor(int& red, int& green, int& blue) override
    {
        red = green = blue = component;
        return S_OK;
    }

private:
    template <class Out, class Value> static HRESULT Say(Out& out, Value value)
    {
        out = value;
        return S_OK;
    }
};
