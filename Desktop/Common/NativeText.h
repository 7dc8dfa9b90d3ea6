#pragma once

#include "Base/KivUnicodeString.h"

#include <QString>

// Texts on their way between the tree and the window.
QString ToQt(const KivUnicodeString& text);
KivUnicodeString FromQt(const QString& text);

// A text of the options window itself, in the user's language; the key when it is missing.
QString WindowText(const char* key);
// The same of the drafting window.
QString DraftingText(const char* key);
