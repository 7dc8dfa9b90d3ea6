#pragma once

#include "KivDrwTabEditor.h"

class KivDrwOptTrelEditor final : public KivDrwTabEditor<KivDrwOptTrelEditor> {
public:
    static constexpr const char* Name = "KivDrwOptTrelEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Trel;
};
