#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the Compatibility tab's editors.
class KivIDrwOptTrelEditorFactory : public KivIDrwTabFactory<KivIDrwOptTrelEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptTrelEditorFactory";
};

inline constexpr IID IID_KivIDrwOptTrelEditorFactory = KivMakeIID(KivIDrwOptTrelEditorFactory::Name);
using KivIDrwOptTrelEditorFactory_var = KivVar<KivIDrwOptTrelEditorFactory>;
