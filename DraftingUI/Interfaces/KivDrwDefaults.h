#pragma once

#include "Base/KivListOf.h"
#include "Base/KivResult.h"
#include "Base/KivUnicodeString.h"

// The default of each setting, in its stored type: what a reader shows while no layer knows the key.
#define KIV_SETTING(group, type, key, function, value, kind) type function();
#define KIV_COMPUTED(group, type, key, function, kind) type function();
#include "KivDrwSettings.def"

// Gathers a value for every key of the catalogue, the stored one or else the default, and, when write is not
// zero, writes them all; commits and saves nothing. 1, or 0 with nothing read or written when the repository
// or the sketcher settings cannot be had.
int ResetAndWriteSettings(unsigned char write);

// Appends the directories that generative view style files lie in: "generativeparameters" below each root
// that the variables KivCollectionStandard and KivDefaultCollectionStandard name (colon separated). E_FAIL
// when there is none.
HRESULT GetGPSPath(KivListOfUnicodeString& directories);

// Fills the list, emptied first, with the names of the style files (*.xml in any case) in these directories:
// each once, sorted. Always S_OK; directories that cannot be read contribute nothing.
HRESULT GetGPSList(KivListOfUnicodeString& files);

// 1 when the first string is the greater one, otherwise -1; deliberately never 0.
int CompareStrings(const KivUnicodeString* first, const KivUnicodeString* second);
