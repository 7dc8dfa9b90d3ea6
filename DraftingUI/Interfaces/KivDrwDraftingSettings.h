#pragma once

#include "KivDraftingSettingsAdapt.h"

// The general drafting settings of this process.
class KivDrwDraftingSettings : public KivDraftingSettingsAdapt {
public:
    // Made on the first call, never destroyed; to be called from one thread.
    static KivDrwDraftingSettings* GetDraftingSettings();

    KivDrwDraftingSettings();
};
