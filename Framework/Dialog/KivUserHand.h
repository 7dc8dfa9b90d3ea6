#pragma once

#include "Base/KivUnicodeString.h"

class KivComboColor;
class KivDialog;
class KivDlgCheckButton;
class KivDlgCombo;
class KivDlgDialog;
class KivDlgEditor;
class KivDlgLock;
class KivDlgPushButton;
class KivDlgRadioButton;
class KivDlgSpinner;

// What came of a user's action: done, or refused with the reason to show him.
struct KivHandAnswer {
    bool done = false;
    KivUnicodeString why; // empty when it was done
    explicit operator bool() const { return done; }
};

// The only door by which a user's actions enter the tree, from a native window or from a test. Each refuses
// what a user could not do (control disabled, hidden or condemned; no such line; a text that means nothing; a
// value out of range) and changes nothing then; otherwise it changes the state and sends the control's
// notification. An action that changes nothing (the same value again) is done, without a notification.
namespace KivUserHand {

KivHandAnswer Tick(KivDlgCheckButton& button);
KivHandAnswer Press(KivDlgPushButton& button);
KivHandAnswer Choose(KivDlgRadioButton& button);
// Closes a window: by its close button, and in the way of the user's desktop. Nothing disables either.
KivHandAnswer Close(KivDlgDialog& window);
KivHandAnswer CloseWindow(KivDlgDialog& window);
// Turns the padlock of an administrator, also that of a control which its page has disabled: whether users
// may change a setting does not depend on another one.
KivHandAnswer Press(KivDlgLock& lock);
KivHandAnswer Choose(KivDlgCombo& combo, int line);
KivHandAnswer ChooseColor(KivComboColor& combo, unsigned int red, unsigned int green, unsigned int blue);
KivHandAnswer Type(KivDlgEditor& editor, const KivUnicodeString& text);
// Text typed into a spinner and committed. Refused is also what could be meant in two ways (see
// KivMeasure::DoubtOf), and a fraction where whole numbers are asked for.
KivHandAnswer Type(KivDlgSpinner& spinner, const KivUnicodeString& text);
// The arrows of a spinner: so many steps up, or down if negative; ends at the limits of its range.
KivHandAnswer Turn(KivDlgSpinner& spinner, int steps);

} // namespace KivUserHand
