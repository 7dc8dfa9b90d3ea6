#pragma once

#include "KivDrwSettingAccess.h"
#include "KivIDrwDraftingSettingAtt.h"

// The default of the setting behind an attribute of the drafting settings' controller, by the operation that
// gets it: KivDrwAttributeDefault<&KivIDrwDraftingSettingAtt::GetPreventFileNew>::Make().
template <auto getAttribute> struct KivDrwAttributeDefault;

#define KIV_ATTRIBUTE(T, attribute, Set, Get, GetInfo, settingKey)                                           \
    template <> struct KivDrwAttributeDefault<&KivIDrwDraftingSettingAtt::Get> {                             \
        static T Make()                                                                                      \
        {                                                                                                    \
            T value{};                                                                                       \
            KivDrwGet(nullptr, KivDrwKeys::settingKey, value);                                               \
            return value;                                                                                    \
        }                                                                                                    \
    };
#include "KivDrwDraftingAttributes.def"
