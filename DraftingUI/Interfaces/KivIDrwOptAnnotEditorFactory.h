#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the Annotation tab's editors.
class KivIDrwOptAnnotEditorFactory : public KivIDrwTabFactory<KivIDrwOptAnnotEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptAnnotEditorFactory";
};

inline constexpr IID IID_KivIDrwOptAnnotEditorFactory = KivMakeIID(KivIDrwOptAnnotEditorFactory::Name);
using KivIDrwOptAnnotEditorFactory_var = KivVar<KivIDrwOptAnnotEditorFactory>;
