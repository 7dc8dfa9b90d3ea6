#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the General tab's editors.
class KivIDrwOptGalEditorFactory : public KivIDrwTabFactory<KivIDrwOptGalEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptGalEditorFactory";
};

inline constexpr IID IID_KivIDrwOptGalEditorFactory = KivMakeIID(KivIDrwOptGalEditorFactory::Name);
using KivIDrwOptGalEditorFactory_var = KivVar<KivIDrwOptGalEditorFactory>;
