#include "KivDrwOptGalEditor.h"

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

void KivDrwOptGalEditor::AfterCommit()
{
    TellSketcher();
}

void KivDrwOptGalEditor::AfterCancel()
{
    TellSketcher();
}
