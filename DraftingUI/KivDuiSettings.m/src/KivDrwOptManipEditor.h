#pragma once

#include "KivDrwTabEditor.h"

class KivDrwOptManipEditor final : public KivDrwTabEditor<KivDrwOptManipEditor> {
public:
    static constexpr const char* Name = "KivDrwOptManipEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Manipulators;
};
