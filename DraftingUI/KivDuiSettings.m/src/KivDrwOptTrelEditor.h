#pragma once

#include "KivDrwOptTrelFrm.h"
#include "KivDrwTabEditor.h"

class KivDrwOptTrelEditor final : public KivDrwTabEditor<KivDrwOptTrelEditor, KivDrwOptTrelFrm> {
public:
    static constexpr const char* Name = "KivDrwOptTrelEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Trel;
};
