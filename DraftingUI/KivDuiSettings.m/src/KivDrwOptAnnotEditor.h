#pragma once

#include "KivDrwTabEditor.h"

class KivDrwOptAnnotEditor final : public KivDrwTabEditor<KivDrwOptAnnotEditor> {
public:
    static constexpr const char* Name = "KivDrwOptAnnotEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Annotation;
};
