#pragma once

#include "KivDrwKeys.h"
#include "Settings/KivSettingRepository.h"

// The repository of all drafting settings, its keys bound to their indices; null when it cannot be had.
inline KivSettingRepository* KivDrwRepository()
{
    KivSettingRepository* repository = KivSettingRepository::GetRepository("DraftingOptions", 0, 1, nullptr);
    if (repository) repository->BindKeys(kKivDrwKeyNames);
    return repository;
}
