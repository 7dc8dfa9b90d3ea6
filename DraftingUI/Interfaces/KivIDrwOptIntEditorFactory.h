#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the Dimension tab's editors.
class KivIDrwOptIntEditorFactory : public KivIDrwTabFactory<KivIDrwOptIntEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptIntEditorFactory";
};

inline constexpr IID IID_KivIDrwOptIntEditorFactory = KivMakeIID(KivIDrwOptIntEditorFactory::Name);
using KivIDrwOptIntEditorFactory_var = KivVar<KivIDrwOptIntEditorFactory>;
