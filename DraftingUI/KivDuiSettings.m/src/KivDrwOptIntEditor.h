#pragma once

#include "KivDrwOptIntFrm.h"
#include "KivDrwTabEditor.h"

class KivDrwOptIntEditor final : public KivDrwTabEditor<KivDrwOptIntEditor, KivDrwOptIntFrm> {
public:
    static constexpr const char* Name = "KivDrwOptIntEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Dimension;
};
