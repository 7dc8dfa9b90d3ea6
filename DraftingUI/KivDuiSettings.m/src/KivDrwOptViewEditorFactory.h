#pragma once

#include "KivDrwOptViewEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptViewEditorFactory final
    : public KivDrwTabFactory<KivDrwOptViewEditorFactory, KivDrwOptViewEditor> {
public:
    static constexpr const char* Name = "KivDrwOptViewEditorFactory";
};
