#include "KivDrwOptGalEditor.h"

#include "KivDrwSketcherSettings.h"
#include "Options/KivIUserSettings.h"

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

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptGalEditor, CreateTIEKivIUserSettingsKivDrwOptGalEditor,
                  KivIUserSettings, KivDrwOptGalEditor)
