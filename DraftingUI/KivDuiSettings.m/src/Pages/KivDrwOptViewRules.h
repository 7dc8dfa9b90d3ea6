#pragma once

#include "Dialog/KivDlgButtons.h"
#include "Form/KivProperty.h"
#include "Lock/KivDrwLockDialog.h"

#include <variant>
#include <vector>

// When a control of the View page is enabled, while the generative view style governs or while it does not.
struct KivDrwViewCondition {
    unsigned modes = 0;                         // in these generation modes, one bit each
    const KivPropertyOf<int>* tick = nullptr;   // if this option is on
    const KivPropertyOf<int>* unless = nullptr; // and if this one is not; see KivDrwViewRule::Apply
};

// What occasions that controls are enabled anew.
enum class KivDrwViewOccasion {
    Shown,
    ModeChosen, // leaves what is not ticked as it is
    Stored,     // touches only what depends on an option
};

// Some controls of the View page that are enabled together. They belong to the dialog tree and may be gone.
struct KivDrwViewRule {
    using Control = std::variant<KivWeakPtr<KivDrwLockDialog>, KivWeakPtr<KivDlgPushButton>>;

    std::vector<Control> controls;
    KivDrwViewCondition prevented; // while the administrator prevents generative view styles
    KivDrwViewCondition styled = {};

    // Enables or disables the controls; a lock stays stronger. The mode is one bit, or all of them where no
    // mode disables anything.
    void Apply(KivDrwViewOccasion occasion, bool isStyled, unsigned mode) const;
};
