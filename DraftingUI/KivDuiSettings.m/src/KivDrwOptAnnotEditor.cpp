#include "KivDrwOptAnnotEditor.h"

#include "Options/KivIUserSettings.h"

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptAnnotEditor, CreateTIEKivIUserSettingsKivDrwOptAnnotEditor,
                  KivIUserSettings, KivDrwOptAnnotEditor)
