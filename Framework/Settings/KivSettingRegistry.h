#pragma once

#include "Settings/KivSettingRepository.h"

#include <map>
#include <memory>
#include <utility>

// The repositories of the process. Never destroyed: they are asked until the very end.
struct KivSettingRegistry {
    static KivSettingRegistry& Instance()
    {
        static auto& registry = *new KivSettingRegistry;
        return registry;
    }

    // By name and edited layer; null where memory ran out.
    std::map<std::pair<KivString, KivUnicodeString>, std::unique_ptr<KivSettingRepository>> repositories;
    KivUnicodeString editedLayer;
    bool isWithheld = false;
};
