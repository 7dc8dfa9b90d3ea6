#pragma once

#include "Kiv2DBaseSketcherSettingsAdapt.h"
#include "KivDraftingSettingsAdapt.h"

class KivIDrwDraftingSettingAtt;

// What the drafting workbench gives to whoever starts it.

// The general drafting settings of this process.
class KivDrwDraftingSettings : public KivDraftingSettingsAdapt {
public:
    // Made on the first call, never destroyed; to be called from one thread.
    static KivDrwDraftingSettings* GetDraftingSettings();

    KivDrwDraftingSettings();
};

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

// Services for whoever starts the drafting workbench.
class KivDrwOptionsServices {
public:
    // Called when the workbench first needs its options. Fills a repository that holds nothing with every
    // default and saves it, and makes the drafting sketcher settings the framework's current ones.
    static void InitOptionsOnDisk();
};

// Which commands of the drafting workbench the administrator has switched off: the host applies it at its
// start, the Administration tab after it has committed, taken back or reset its settings.
class KivDrwCommandAvailability {
public:
    // Makes every declared command that the attributes govern available or unavailable, as they say. An
    // attribute that cannot be read prevents nothing.
    static void Apply(KivIDrwDraftingSettingAtt& attributes);
};
