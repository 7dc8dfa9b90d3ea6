#pragma once

#include "Dialog/KivUserHand.h"

// How the user's hand reaches the controls of every room.
namespace KivHandReach {

KivHandAnswer Done();
KivHandAnswer Refused(const KivUnicodeString& why);
// Whether a user could see it.
KivHandAnswer See(const KivDialog& node);
// Whether a user could reach the control at all.
KivHandAnswer Reach(const KivDialog& control);

} // namespace KivHandReach
