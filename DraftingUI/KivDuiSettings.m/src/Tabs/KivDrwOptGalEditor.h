#pragma once

#include "Pages/KivDrwOptGalFrm.h"
#include "Tabs/KivDrwTabEditor.h"

class KivDrwOptGalEditor final : public KivDrwTabEditor<KivDrwOptGalEditor, KivDrwOptGalFrm> {
public:
    static constexpr const char* Name = "KivDrwOptGalEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::General;

protected:
    // Notify the sketcher: grid, then snap. A reset deliberately stays silent.
    Notify AfterCommit() const override;
    Notify AfterCancel() const override;
};
