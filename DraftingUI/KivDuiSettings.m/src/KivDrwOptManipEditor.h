#pragma once

#include "KivDrwOptManipFrm.h"
#include "KivDrwTabEditor.h"

class KivDrwOptManipEditor final : public KivDrwTabEditor<KivDrwOptManipEditor, KivDrwOptManipFrm> {
public:
    static constexpr const char* Name = "KivDrwOptManipEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Manipulators;
};
