#pragma once

#include "Dialog/KivDlgFrame.h"

// A page of the options dialog: the empty frame that the options manager hands to an editor to build in.
class KivEditorPage : public KivClass<KivEditorPage, KivDlgFrame> {
public:
    static constexpr const char* Name = "KivEditorPage";
    using KivClass::KivClass;
};
