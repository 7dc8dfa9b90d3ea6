#pragma once

#include "Base/KivListOf.h"
#include "Base/KivUnicodeString.h"

using KivListOfUnicodeString = KivListOf<KivUnicodeString>;
