#pragma once

#include "KivDrwOptAdminEditor.h"
#include "KivDrwTabFactory.h"

class KivDrwOptAdminEditorFactory final
    : public KivDrwTabFactory<KivDrwOptAdminEditorFactory, KivDrwOptAdminEditor> {
public:
    static constexpr const char* Name = "KivDrwOptAdminEditorFactory";
};
