#pragma once

#include "KivDrwOptLayoutEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptLayoutEditorFactory final
    : public KivDrwTabFactory<KivDrwOptLayoutEditorFactory, KivDrwOptLayoutEditor> {
public:
    static constexpr const char* Name = "KivDrwOptLayoutEditorFactory";
};
