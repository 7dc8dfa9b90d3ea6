#pragma once

#include "KivDrwTabEditor.h"

class KivDrwOptIntEditor final : public KivDrwTabEditor<KivDrwOptIntEditor> {
public:
    static constexpr const char* Name = "KivDrwOptIntEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Dimension;
};
