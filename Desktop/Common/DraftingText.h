#pragma once

#include <QString>

// A text of the drafting window in the user's language; the key when it is missing.
QString DraftingText(const char* key);
