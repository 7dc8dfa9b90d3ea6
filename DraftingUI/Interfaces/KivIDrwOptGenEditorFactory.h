#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the Generation tab's editors.
class KivIDrwOptGenEditorFactory : public KivIDrwTabFactory<KivIDrwOptGenEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptGenEditorFactory";
};

inline constexpr IID IID_KivIDrwOptGenEditorFactory = KivMakeIID(KivIDrwOptGenEditorFactory::Name);
using KivIDrwOptGenEditorFactory_var = KivVar<KivIDrwOptGenEditorFactory>;
