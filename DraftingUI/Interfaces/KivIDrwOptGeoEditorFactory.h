#pragma once

#include "KivIDrwTabFactory.h"

// The factory of the Geometry tab's editors.
class KivIDrwOptGeoEditorFactory : public KivIDrwTabFactory<KivIDrwOptGeoEditorFactory> {
public:
    static constexpr const char* Name = "KivIDrwOptGeoEditorFactory";
};

inline constexpr IID IID_KivIDrwOptGeoEditorFactory = KivMakeIID(KivIDrwOptGeoEditorFactory::Name);
using KivIDrwOptGeoEditorFactory_var = KivVar<KivIDrwOptGeoEditorFactory>;
