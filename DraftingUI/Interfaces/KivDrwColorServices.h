#pragma once

class KivComboColor;
class KivDrwLockComboColor;

// Delivers the selected color, in components from 0 to 255; nothing happens without a combo.
void GetColorRGB(KivComboColor* combo, int& r, int& g, int& b);
void GetColorRGB(KivDrwLockComboColor* combo, int& r, int& g, int& b);

// Selects a color; the components are not checked. Nothing happens without a combo.
void SetColorRGB(KivComboColor* combo, const int& r, const int& g, const int& b);
void SetColorRGB(KivDrwLockComboColor* combo, const int& r, const int& g, const int& b);
