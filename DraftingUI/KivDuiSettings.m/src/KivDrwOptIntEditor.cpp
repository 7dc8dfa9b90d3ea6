#include "KivDrwOptIntEditor.h"

#include "Options/KivIUserSettings.h"

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptIntEditor, CreateTIEKivIUserSettingsKivDrwOptIntEditor,
                  KivIUserSettings, KivDrwOptIntEditor)
