#pragma once

#include "KivDrwOptGenEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptGenEditorFactory final
    : public KivDrwTabFactory<KivDrwOptGenEditorFactory, KivDrwOptGenEditor> {
public:
    static constexpr const char* Name = "KivDrwOptGenEditorFactory";
};
