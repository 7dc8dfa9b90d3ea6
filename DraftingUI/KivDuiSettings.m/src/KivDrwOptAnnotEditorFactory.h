#pragma once

#include "KivDrwOptAnnotEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptAnnotEditorFactory final
    : public KivDrwTabFactory<KivDrwOptAnnotEditorFactory, KivDrwOptAnnotEditor> {
public:
    static constexpr const char* Name = "KivDrwOptAnnotEditorFactory";
};
