#pragma once

#include "KivDrwOptManipEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptManipEditorFactory final
    : public KivDrwTabFactory<KivDrwOptManipEditorFactory, KivDrwOptManipEditor> {
public:
    static constexpr const char* Name = "KivDrwOptManipEditorFactory";
};
