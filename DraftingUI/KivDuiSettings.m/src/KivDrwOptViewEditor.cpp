#include "KivDrwOptViewEditor.h"

#include "Options/KivIUserSettings.h"

KIV_IMPLEMENT_TIE(TIEKivIUserSettingsKivDrwOptViewEditor, CreateTIEKivIUserSettingsKivDrwOptViewEditor,
                  KivIUserSettings, KivDrwOptViewEditor)
