#pragma once

#include "KivDrwKeyValue.h"
#include "KivDrwRepository.h"
#include "KivPageFrame.h"

// A page without a generic frame and without accessors: it reads and writes the keys themselves.
class KivDrwKeyPageFrame : public KivClass<KivDrwKeyPageFrame, KivPageFrame> {
public:
    static constexpr const char* Name = "KivDrwKeyPageFrame";
    using KivClass::KivClass;

    // Sets every cached value to its default.
    void InitDraftingValues();
    void Initialize() override;

protected:
    KivSettingRepository* _repository = KivDrwRepository(); // may be null: the page then shows defaults
    std::vector<KivDrwPresetValue*> _presets;
};
