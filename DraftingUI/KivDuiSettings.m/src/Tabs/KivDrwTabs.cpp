#include "Tabs/KivDrwTabs.h"

#include "KivDrwTabFactories.h"
#include "Options/KivIUserSettings.h"

// What the host finds in the class dictionary once this library is loaded.
#define KIV_TAB(Editor, EditorTie, CreateEditorTie, Factory, FactoryInterface, FactoryId, FactoryVar,        \
                FactoryTie, CreateFactoryTie, Frame, group)                                                  \
    KIV_IMPLEMENT_TIE(EditorTie, CreateEditorTie, KivIUserSettings, Editor)                                  \
    KIV_IMPLEMENT_TIE(FactoryTie, CreateFactoryTie, FactoryInterface, Factory)
#include "KivDrwTabs.def"
