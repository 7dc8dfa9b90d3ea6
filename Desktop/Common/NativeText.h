#pragma once

#include "Base/KivUnicodeString.h"

#include <QString>

// Texts on their way between the tree and the window.
QString ToQt(const KivUnicodeString& text);
KivUnicodeString FromQt(const QString& text);

// A text of the window itself, in the user's language; the key when it is missing.
QString WindowText(const char* key);
