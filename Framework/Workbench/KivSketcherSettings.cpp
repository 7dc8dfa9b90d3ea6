#include "Workbench/KivSketcherSettings.h"

namespace {

KivSketcherSettings* current = nullptr;

} // namespace

void KivSketcherSettings::SetSketcherSettings(KivSketcherSettings* settings)
{
    current = settings;
}

KivSketcherSettings* KivSketcherSettings::GetSketcherSettings()
{
    return current;
}
