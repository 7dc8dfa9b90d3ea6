#include "KivDrwSketcherSettings.h"

#include "KivDrwRepository.h"

KivDrwSketcherSettings* KivDrwSketcherSettings::GetSketcherSettings()
{
    static KivDrwSketcherSettings* settings = nullptr;
    if (!settings) settings = new KivDrwSketcherSettings;
    return settings;
}

KivDrwSketcherSettings::KivDrwSketcherSettings() : Kiv2DBaseSketcherSettingsAdapt(KivDrwRepository()) {}
