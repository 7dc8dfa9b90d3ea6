#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the Layout tab's editors.
class KivIDrwOptLayoutEditorFactory : public KivIDrwTabFactory<KivIDrwOptLayoutEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptLayoutEditorFactory";
};

inline constexpr IID IID_KivIDrwOptLayoutEditorFactory = KivMakeIID(KivIDrwOptLayoutEditorFactory::Name);
using KivIDrwOptLayoutEditorFactory_var = KivVar<KivIDrwOptLayoutEditorFactory>;
