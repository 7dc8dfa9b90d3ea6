#include "KivDrwOptGeoEditor.h"

#include "KivDrwSketcherSettings.h"

namespace {

void TellSketcher()
{
    KivDrwSketcherSettings* sketcher = KivDrwSketcherSettings::GetSketcherSettings();
    if (!sketcher) return;
    sketcher->Visu3DUIModify();
    sketcher->GeomUIModify();
    sketcher->CpltModify();
}

} // namespace

void KivDrwOptGeoEditor::AfterCancel()
{
    TellSketcher();
}

void KivDrwOptGeoEditor::AfterReset()
{
    TellSketcher();
}
