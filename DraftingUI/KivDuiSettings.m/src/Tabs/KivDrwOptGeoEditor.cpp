#include "Tabs/KivDrwOptGeoEditor.h"

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

KivDrwTabEditorBase::Telling KivDrwOptGeoEditor::AfterCancel() const
{
    return &TellSketcher;
}

KivDrwTabEditorBase::Telling KivDrwOptGeoEditor::AfterReset() const
{
    return &TellSketcher;
}
