#pragma once

#include "Pages/KivDrwOptGeoFrm.h"
#include "Tabs/KivDrwTabEditor.h"

class KivDrwOptGeoEditor final : public KivDrwTabEditor<KivDrwOptGeoEditor, KivDrwOptGeoFrm> {
public:
    static constexpr const char* Name = "KivDrwOptGeoEditor";
    static constexpr KivDrwGroup Group = KivDrwGroup::Geometry;

protected:
    // Notify the sketcher: visualization, geometry, then completion. A commit deliberately stays silent.
    Notify AfterCancel() const override;
    Notify AfterReset() const override;
};
