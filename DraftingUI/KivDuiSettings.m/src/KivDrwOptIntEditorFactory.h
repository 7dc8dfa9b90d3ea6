#pragma once

#include "KivDrwOptIntEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptIntEditorFactory final
    : public KivDrwTabFactory<KivDrwOptIntEditorFactory, KivDrwOptIntEditor> {
public:
    static constexpr const char* Name = "KivDrwOptIntEditorFactory";
};
