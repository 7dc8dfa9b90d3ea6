#pragma once

#include "KivDrwTabEditor.h"

class KivDrwOptViewEditor final : public KivDrwTabEditor<KivDrwOptViewEditor> {
public:
    static constexpr const char* Name = "KivDrwOptViewEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::View;
};
