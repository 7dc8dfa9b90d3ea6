#pragma once

#include "Dialog/KivDlgEditor.h"
#include "Lock/KivDrwLockControl.h"

// A lock-aware text field.
class KivDrwLockEditor : public KivDrwLockControlOf<KivDrwLockEditor, KivDlgEditor> {
public:
    static constexpr const char* Name = "KivDrwLockEditor";
    KivDrwLockEditor(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                     const KivString& name, unsigned long style);
    KivDrwLockEditor(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                     unsigned long style);

    // The field itself, on which pages also subscribe; null without a control.
    KivDlgEditor* GetEditor() const { return Wrapped(); }
};
