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

std::vector<const char*> KivDrwOptGalEditor::ResetKeys()
{
    std::vector<const char*> keys = KivDrwTabEditor::ResetKeys();
    // A setting of this tab that has neither a control nor a default.
    keys.push_back("DrwAreaFillTol");
    return keys;
}

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
