#include "KivDrwOptTrelEditor.h"

#include "Options/KivIUserSettings.h"

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptTrelEditor, CreateTIEKivIUserSettingsKivDrwOptTrelEditor,
                  KivIUserSettings, KivDrwOptTrelEditor)
