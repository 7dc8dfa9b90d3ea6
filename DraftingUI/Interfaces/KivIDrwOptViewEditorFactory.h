#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the View tab's editors.
class KivIDrwOptViewEditorFactory : public KivIDrwTabFactory<KivIDrwOptViewEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptViewEditorFactory";
};

inline constexpr IID IID_KivIDrwOptViewEditorFactory = KivMakeIID(KivIDrwOptViewEditorFactory::Name);
using KivIDrwOptViewEditorFactory_var = KivVar<KivIDrwOptViewEditorFactory>;
