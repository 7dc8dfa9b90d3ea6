#pragma once

#include "KivDrwOptGalEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptGalEditorFactory final
    : public KivDrwTabFactory<KivDrwOptGalEditorFactory, KivDrwOptGalEditor> {
public:
    static constexpr const char* Name = "KivDrwOptGalEditorFactory";
};
