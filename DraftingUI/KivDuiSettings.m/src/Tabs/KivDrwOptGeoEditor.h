#pragma once

#include "Pages/KivDrwOptGeoFrm.h"
#include "Tabs/KivDrwTabEditor.h"

class KivDrwOptGeoEditor final : public KivDrwTabEditor<KivDrwOptGeoEditor, KivDrwOptGeoFrm> {
public:
    static constexpr const char* Name = "KivDrwOptGeoEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Geometry;

protected:
    // Tell the sketcher: visualization, geometry, then completion. A commit deliberately stays silent.
    Telling AfterCancel() const override;
    Telling AfterReset() const override;
};
