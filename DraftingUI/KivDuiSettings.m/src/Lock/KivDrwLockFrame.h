#pragma once

#include "Lock/KivDrwLockDialog.h"

// A group under one padlock: pages place its controls into the frame that GetDialog answers.
class KivDrwLockFrame : public KivClass<KivDrwLockFrame, KivDrwLockDialog> {
public:
    static constexpr const char* Name = "KivDrwLockFrame";
    // The style is that of the inner frame.
    KivDrwLockFrame(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                    const KivString& name, unsigned long style);
    KivDrwLockFrame(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                    unsigned long style);
};
