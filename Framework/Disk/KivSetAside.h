#pragma once

#include "Base/KivUnicodeString.h"
#include "Disk/KivFilePlace.h"

#include <string_view>

// Keeps bytes that are about to be replaced, beside their file: as "<file>.damaged-<number>", flushed. Bytes
// that one of these copies has already are not kept twice; the newest three copies stay. 0, or the error;
// where is the new copy, empty when there was one.
int KivSetAside(const KivFilePlace& file, std::string_view bytes, KivUnicodeString& where);
