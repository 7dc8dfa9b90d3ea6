#include "Tabs/KivDrwOptGalEditor.h"

#include "KivDrwSketcherSettings.h"

namespace {

void TellSketcher()
{
    KivDrwSketcherSettings* sketcher = KivDrwSketcherSettings::GetSketcherSettings();
    if (!sketcher) return;
    sketcher->GridModify();
    sketcher->SnapModify();
}

} // namespace

KivDrwTabEditorBase::Telling KivDrwOptGalEditor::AfterCommit() const
{
    return &TellSketcher;
}

KivDrwTabEditorBase::Telling KivDrwOptGalEditor::AfterCancel() const
{
    return &TellSketcher;
}
