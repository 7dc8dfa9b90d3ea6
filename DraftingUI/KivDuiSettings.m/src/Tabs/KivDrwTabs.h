#pragma once

#include "Pages/KivDrwOptAnnotFrm.h"
#include "Pages/KivDrwOptGenFrame.h"
#include "Pages/KivDrwOptIntFrm.h"
#include "Pages/KivDrwOptLayoutFrame.h"
#include "Pages/KivDrwOptManipFrm.h"
#include "Pages/KivDrwOptTrelFrm.h"
#include "Pages/KivDrwOptViewFrame.h"
#include "Tabs/KivDrwOptAdminEditor.h"
#include "Tabs/KivDrwOptGalEditor.h"
#include "Tabs/KivDrwOptGeoEditor.h"
#include "Tabs/KivDrwTabFactory.h"

// The editors that do what the editor of every tab does.
#define KIV_TAB_OF_ITS_OWN(...)
#define KIV_TAB(Editor, EditorTie, CreateEditorTie, Factory, FactoryInterface, FactoryId, FactoryVar,        \
                FactoryTie, CreateFactoryTie, Frame, group)                                                  \
    class Editor final : public KivDrwTabEditor<Editor, Frame> {                                             \
    public:                                                                                                  \
        static constexpr const char* Name = #Editor;                                                         \
        static constexpr KivDrwGroup Group = KivDrwGroup::group;                                             \
    };
#include "KivDrwTabs.def"

// The factories of all tabs.
#define KIV_TAB(Editor, EditorTie, CreateEditorTie, Factory, FactoryInterface, FactoryId, FactoryVar,        \
                FactoryTie, CreateFactoryTie, Frame, group)                                                  \
    class Factory final : public KivDrwTabFactory<Factory, Editor> {                                         \
    public:                                                                                                  \
        static constexpr const char* Name = #Factory;                                                        \
    };
#include "KivDrwTabs.def"
