#pragma once

#include "Form/KivDrwKeyProperty.h"
#include "Form/KivPageFrame.h"
#include "KivDrwSettingAccess.h"

// A page without a generic frame and without accessors: it reads and writes the keys themselves.
class KivDrwKeyPageFrame : public KivClass<KivDrwKeyPageFrame, KivPageFrame> {
public:
    static constexpr const char* Name = "KivDrwKeyPageFrame";
    using KivClass::KivClass;

    // Sets every property to its default, which Initialize does for those that are not stored.
    void InitDraftingValues()
    {
        for (KivProperty* property : _properties) property->LoadDefault();
    }

protected:
    KivSettingRepository* _repository = KivDrwRepository(); // may be null: the page then shows defaults
};
