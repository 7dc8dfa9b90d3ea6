#pragma once

#include "KivDrwOptTrelEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptTrelEditorFactory final
    : public KivDrwTabFactory<KivDrwOptTrelEditorFactory, KivDrwOptTrelEditor> {
public:
    static constexpr const char* Name = "KivDrwOptTrelEditorFactory";
};
