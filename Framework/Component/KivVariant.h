#pragma once

#include "Base/KivUnicodeString.h"

#include <vector>

// A list of texts in the form in which automation interfaces take it.
struct KivVariant {
    std::vector<KivUnicodeString> texts;
};

// A new variant of count texts, to be freed by FreeVariantSafeArray; null without texts or memory.
KivVariant* BuildSafeArrayVariant(const KivUnicodeString* texts, long count);

// Frees a variant; null is nothing.
void FreeVariantSafeArray(KivVariant* variant);
