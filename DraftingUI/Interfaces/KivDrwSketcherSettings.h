#pragma once

#include "Kiv2DBaseSketcherSettingsAdapt.h"

// The sketcher settings of the drafting workbench.
class KivDrwSketcherSettings : public Kiv2DBaseSketcherSettingsAdapt {
public:
    // Made on the first call, never destroyed; to be called from one thread.
    static KivDrwSketcherSettings* GetSketcherSettings();

    KivDrwSketcherSettings();

protected:
    // Packed black.
    unsigned int GetDefaultColor() override { return 0; }
};
