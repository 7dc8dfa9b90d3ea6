#pragma once

#include "KivDrwOptAnnotFrm.h"
#include "KivDrwTabEditor.h"

class KivDrwOptAnnotEditor final : public KivDrwTabEditor<KivDrwOptAnnotEditor, KivDrwOptAnnotFrm> {
public:
    static constexpr const char* Name = "KivDrwOptAnnotEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Annotation;
};
