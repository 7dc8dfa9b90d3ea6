#include "KivDrwOptLayoutEditor.h"

#include "Options/KivIUserSettings.h"

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptLayoutEditor, CreateTIEKivIUserSettingsKivDrwOptLayoutEditor,
                  KivIUserSettings, KivDrwOptLayoutEditor)
