#include "KivDrwDraftingSettings.h"

#include "KivDrwRepository.h"

KivDrwDraftingSettings* KivDrwDraftingSettings::GetDraftingSettings()
{
    static KivDrwDraftingSettings* settings = nullptr;
    if (!settings) settings = new KivDrwDraftingSettings;
    return settings;
}

KivDrwDraftingSettings::KivDrwDraftingSettings() : KivDraftingSettingsAdapt(KivDrwRepository()) {}
