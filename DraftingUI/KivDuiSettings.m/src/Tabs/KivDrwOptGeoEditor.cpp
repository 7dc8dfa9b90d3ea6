#include "Tabs/KivDrwOptGeoEditor.h"

#include "KivDrwWorkbench.h"

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

KivDrwTabEditorBase::Notify KivDrwOptGeoEditor::AfterCancel() const
{
    return &TellSketcher;
}

KivDrwTabEditorBase::Notify KivDrwOptGeoEditor::AfterReset() const
{
    return &TellSketcher;
}
