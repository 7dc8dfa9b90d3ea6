#include "KivDrwOptManipEditor.h"

#include "Options/KivIUserSettings.h"

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptManipEditor, CreateTIEKivIUserSettingsKivDrwOptManipEditor,
                  KivIUserSettings, KivDrwOptManipEditor)
