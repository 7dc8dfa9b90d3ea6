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
