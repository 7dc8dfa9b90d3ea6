#pragma once

class KivIDrwDraftingSettingAtt;

// Which commands of the drafting workbench the administrator has switched off: the host applies it at its
// start, the Administration tab after it has committed, taken back or reset its settings.
class KivDrwCommandAvailability {
public:
    // Makes every declared command that the attributes govern available or unavailable, as they say. An
    // attribute that cannot be read prevents nothing.
    static void Apply(KivIDrwDraftingSettingAtt& attributes);
};
