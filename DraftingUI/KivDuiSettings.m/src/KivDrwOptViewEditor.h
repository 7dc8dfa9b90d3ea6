#pragma once

#include "KivDrwOptViewFrame.h"
#include "KivDrwTabEditor.h"

class KivDrwOptViewEditor final : public KivDrwTabEditor<KivDrwOptViewEditor, KivDrwOptViewFrame> {
public:
    static constexpr const char* Name = "KivDrwOptViewEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::View;
};
