#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the Administration tab's editors.
class KivIDrwOptAdminEditorFactory : public KivIDrwTabFactory<KivIDrwOptAdminEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptAdminEditorFactory";
};

inline constexpr IID IID_KivIDrwOptAdminEditorFactory = KivMakeIID(KivIDrwOptAdminEditorFactory::Name);
using KivIDrwOptAdminEditorFactory_var = KivVar<KivIDrwOptAdminEditorFactory>;
