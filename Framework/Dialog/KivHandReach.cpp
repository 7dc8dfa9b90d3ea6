#include "Dialog/KivHandReach.h"

#include "Base/KivTextCatalogue.h"
#include "Dialog/KivDialog.h"

KivHandAnswer KivHandReach::Done()
{
    return {true, {}};
}

KivHandAnswer KivHandReach::Refused(const KivUnicodeString& why)
{
    return {false, why};
}

KivHandAnswer KivHandReach::See(const KivDialog& node)
{
    if (node.IsCondemned() || !node.IsShown())
        return Refused(KivTextCatalogue::FrameworkText("HandNotShown"));
    return Done();
}

KivHandAnswer KivHandReach::Reach(const KivDialog& control)
{
    if (const KivHandAnswer seen = See(control); !seen) return seen;
    if (!control.IsEnabled()) return Refused(control.WhyDisabled());
    return Done();
}
