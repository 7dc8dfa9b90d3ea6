#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the Manipulators tab's editors.
class KivIDrwOptManipEditorFactory : public KivIDrwTabFactory<KivIDrwOptManipEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptManipEditorFactory";
};

inline constexpr IID IID_KivIDrwOptManipEditorFactory = KivMakeIID(KivIDrwOptManipEditorFactory::Name);
using KivIDrwOptManipEditorFactory_var = KivVar<KivIDrwOptManipEditorFactory>;
