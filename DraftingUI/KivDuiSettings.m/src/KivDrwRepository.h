#pragma once

#include "Settings/KivSettingRepository.h"

// The repository of all drafting settings; null when it cannot be had.
inline KivSettingRepository* KivDrwRepository()
{
    return KivSettingRepository::GetRepository("DraftingOptions", 0, 1, nullptr);
}
