#pragma once

#include "Base/KivUnicodeString.h"
#include "Component/KivExtensionAdapter.h"

#include <new>

// Every tab's factory: an extension of the options manager that makes editors of one class.
template <class Self, class Editor> class KivDrwTabFactory : public KivClass<Self, KivExtensionAdapter> {
public:
    static constexpr const char* Framework = "DraftingUI";
    static constexpr const char* LateType = "KivEditorManager2";

    // 1 for the name of the tab's editor class.
    unsigned char Support(const KivUnicodeString& editorName) const { return editorName == Editor::Name; }

    // A new editor under the interface of that name, with a reference for the caller; null, and no editor
    // left, when editors do not offer it.
    KivBaseUnknown* Create(const KivUnicodeString& interfaceName) const
    {
        auto* editor = new (std::nothrow) Editor;
        if (!editor) return nullptr;
        KivBaseUnknown* found = editor->QueryInterface(interfaceName.ConvertToChar());
        editor->Release();
        return found;
    }

    static KivMetaClass* MetaObject()
    {
        static KivMetaClass* const meta = [] {
            KivMetaClass* const made = KivClass<Self, KivExtensionAdapter>::MetaObject();
            made->DeclareExtensionOf(KivMetaClass::Find("KivUserSettingsManager"));
            return made;
        }();
        return meta;
    }
};
