#pragma once

#include "KivDrwOptGeoEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptGeoEditorFactory final
    : public KivDrwTabFactory<KivDrwOptGeoEditorFactory, KivDrwOptGeoEditor> {
public:
    static constexpr const char* Name = "KivDrwOptGeoEditorFactory";
};
