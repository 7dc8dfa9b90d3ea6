#pragma once

class QDialog;

// Who has the keyboard while a dialog of the program opens and when it closes.
namespace DialogKeyboard {

// Opens the dialog when the event is over that led to it: the popup of a combo, say, has the keyboard until
// then. When it ends, its owner has the keyboard.
void OpenAfterEvent(QDialog& dialog);

// To be called when a user has closed the dialog: the window of its owner has the keyboard again. Some
// desktops would give it to another window of the program.
void GiveBack(const QDialog& dialog);

} // namespace DialogKeyboard
