#pragma once

#include "Base/KivUnicodeString.h"

class KivDlgCombo;

// Makes a combo show and select a value: its line when there is one, else a new line in ascending order.
// Nothing happens without a combo.
void SetField(KivDlgCombo* combo, double value);
void SetField(KivDlgCombo* combo, const KivUnicodeString& text);
