#pragma once

#include "KivDrwOptLayoutFrame.h"
#include "KivDrwTabEditor.h"

class KivDrwOptLayoutEditor final : public KivDrwTabEditor<KivDrwOptLayoutEditor, KivDrwOptLayoutFrame> {
public:
    static constexpr const char* Name = "KivDrwOptLayoutEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Layout;
};
