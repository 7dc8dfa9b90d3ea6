#pragma once

#include "KivDrwOptAdminEditor.h"
#include "KivDrwOptAnnotFrm.h"
#include "KivDrwOptGalEditor.h"
#include "KivDrwOptGenFrame.h"
#include "KivDrwOptGeoEditor.h"
#include "KivDrwOptIntFrm.h"
#include "KivDrwOptLayoutFrame.h"
#include "KivDrwOptManipFrm.h"
#include "KivDrwOptTrelFrm.h"
#include "KivDrwOptViewFrame.h"
#include "KivDrwTabFactory.h"

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
