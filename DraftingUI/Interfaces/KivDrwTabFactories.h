#pragma once

#include "KivIDrwTabFactory.h"

// The ten factory interfaces by which a host finds the tabs (KivIDrwOptGalEditorFactory and the others), each
// with its identifier and its handle, and the functions that make the adapters of the library's factories and
// editors. Each such function answers null when memory is short; the caller owns the reference. Its argument
// is an instance of the class whose name ends its own.
#define KIV_TAB(Editor, EditorTie, CreateEditorTie, Factory, FactoryInterface, FactoryId, FactoryVar,        \
                FactoryTie, CreateFactoryTie, Frame, group)                                                  \
    class FactoryInterface : public KivIDrwTabFactory<FactoryInterface> {                                    \
    public:                                                                                                  \
        static constexpr const char* Name = #FactoryInterface;                                               \
    };                                                                                                       \
    inline constexpr IID FactoryId = KivMakeIID(FactoryInterface::Name);                                     \
    using FactoryVar = KivVar<FactoryInterface>;                                                             \
    KivBaseUnknown* CreateFactoryTie(KivBaseUnknown* factory);                                               \
    KivBaseUnknown* CreateEditorTie(KivBaseUnknown* editor);
#include "KivDrwTabs.def"
