#pragma once

#include "KivDrwTabEditor.h"

class KivDrwOptGenEditor final : public KivDrwTabEditor<KivDrwOptGenEditor> {
public:
    static constexpr const char* Name = "KivDrwOptGenEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Generation;
};
