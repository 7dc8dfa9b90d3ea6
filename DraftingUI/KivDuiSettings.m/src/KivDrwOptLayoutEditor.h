#pragma once

#include "KivDrwTabEditor.h"

class KivDrwOptLayoutEditor final : public KivDrwTabEditor<KivDrwOptLayoutEditor> {
public:
    static constexpr const char* Name = "KivDrwOptLayoutEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Layout;
};
