#include "Pages/KivDrwOptViewRules.h"

void KivDrwViewRule::Apply(KivDrwViewOccasion occasion, bool isStyled, unsigned mode) const
{
    const auto& [modes, tick, unless] = isStyled ? styled : prevented;
    const bool isInMode = (modes & mode) != 0;
    const bool isTicked = !tick || tick->cached != 0;
    const bool isStored = occasion == KivDrwViewOccasion::Stored;
    if (isStored && !(isInMode && (tick || unless))) return;
    if (occasion == KivDrwViewOccasion::ModeChosen && isInMode && !isTicked) return;
    // What is ticked heeds the other option only once something was stored, deliberately.
    const bool isBarred = unless && unless->cached == 1 && (!tick || isStored);
    const unsigned long sensitivity = isInMode && isTicked && !isBarred ? KivDlgEnabled : KivDlgDisabled;
    for (const Control& each : controls) {
        std::visit(
            [sensitivity](const auto& control) {
                if (control) control->SetSensitivity(sensitivity);
            },
            each);
    }
}
