#pragma once

#include "Dialog/KivDlgCheckButton.h"
#include "Dialog/KivDlgLabel.h"
#include "Lock/KivDrwLockRow.h"

// A row without a setting: a plain label, kept in line with the rows above and below by a spacer in the
// padlock's cell. Texts go to and come from the label; without one, from the frame.
class KivDrwLockLabel : public KivClass<KivDrwLockLabel, KivDrwLockRow> {
public:
    static constexpr const char* Name = "KivDrwLockLabel";

    // Zero leaves the label out; the padlock's cell is kept.
    KivDrwLockLabel(KivDialog* parent, const KivString& name, int withLabel);

    // The label itself; null without one.
    KivDlgLabel* GetDialog() const { return static_cast<KivDlgLabel*>(_dialog.Get()); }

private:
    KivWeakPtr<KivDlgCheckButton> _spacer;
};
