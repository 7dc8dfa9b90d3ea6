#include "Tabs/KivDrwOptGalEditor.h"

#include "KivDrwWorkbench.h"

namespace {

void TellSketcher()
{
    KivDrwSketcherSettings* sketcher = KivDrwSketcherSettings::GetSketcherSettings();
    if (!sketcher) return;
    sketcher->GridModify();
    sketcher->SnapModify();
}

} // namespace

KivDrwTabEditorBase::Notify KivDrwOptGalEditor::AfterCommit() const
{
    return &TellSketcher;
}

KivDrwTabEditorBase::Notify KivDrwOptGalEditor::AfterCancel() const
{
    return &TellSketcher;
}
