#pragma once

#include "Component/KivClass.h"
#include "Component/KivTie.h"
#include "Component/KivVar.h"
#include "Options/KivEditorFactory.h"

// Every tab's factory interface; Self is the tab's own. It has the operations of KivEditorFactory and states
// how an adapter passes them on.
template <class Self> class KivIDrwTabFactory : public KivClass<Self, KivEditorFactory> {
public:
    static constexpr const char* Framework = "DraftingUI";
    static constexpr KivClassKind Kind = KivClassKind::Interface;

    template <class Implementation> class Forwarder : public KivTie<Self, Implementation> {
    public:
        using KivTie<Self, Implementation>::KivTie;
        unsigned char Support(const KivUnicodeString& editorName) const override
        {
            return this->Impl() ? this->Impl()->Support(editorName) : static_cast<unsigned char>(0);
        }
        KivBaseUnknown* Create(const KivUnicodeString& interfaceName) const override
        {
            return this->Impl() ? this->Impl()->Create(interfaceName) : nullptr;
        }
    };
};

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
