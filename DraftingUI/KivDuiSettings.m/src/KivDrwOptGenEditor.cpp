#include "KivDrwOptGenEditor.h"

#include "Options/KivIUserSettings.h"

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptGenEditor, CreateTIEKivIUserSettingsKivDrwOptGenEditor,
                  KivIUserSettings, KivDrwOptGenEditor)
