#pragma once

#include "KivDrwOptGenFrame.h"
#include "KivDrwTabEditor.h"

class KivDrwOptGenEditor final : public KivDrwTabEditor<KivDrwOptGenEditor, KivDrwOptGenFrame> {
public:
    static constexpr const char* Name = "KivDrwOptGenEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Generation;
};
