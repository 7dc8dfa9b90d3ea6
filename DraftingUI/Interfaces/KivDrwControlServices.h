#pragma once

#include "Base/KivResult.h"
#include "Base/KivUnicodeString.h"

class KivComboColor;
class KivComboWeight;
class KivCommand;
class KivDlgCombo;
class KivDlgControl;
class KivDrwLockCheckButton;
class KivDrwLockComboColor;
class KivDrwLockControl;
class KivDrwLockSpinner;

// What pages and windows ask of their controls, plain ones and lock-aware ones.

// Gives controls the unit that the user has chosen in the parameter settings: millimeters or degrees when the
// parameter engine answers none; a unit that no control knows leaves the control's own. Sets how many
// decimals are shown at most in every case. Nothing happens without a control.
class DrwOptionsServices {
public:
    static void SetControlUnitToPqeLength(KivDlgControl* control, int precision);
    static void SetControlUnitToPqeLength(KivDrwLockControl* control, int precision);
    static void SetControlUnitToPqeAngle(KivDlgControl* control, int precision);
    static void SetControlUnitToPqeAngle(KivDrwLockControl* control, int precision);
};

// Delivers the selected color, in components from 0 to 255; nothing happens without a combo.
void GetColorRGB(KivComboColor* combo, int& r, int& g, int& b);
void GetColorRGB(KivDrwLockComboColor* combo, int& r, int& g, int& b);

// Selects a color; the components are not checked. Nothing happens without a combo.
void SetColorRGB(KivComboColor* combo, const int& r, const int& g, const int& b);
void SetColorRGB(KivDrwLockComboColor* combo, const int& r, const int& g, const int& b);

// Makes a combo show and select a value: its line when there is one, else a new line in ascending order.
// Nothing happens without a combo.
void SetField(KivDlgCombo* combo, double value);
void SetField(KivDlgCombo* combo, const KivUnicodeString& text);

// The thickness of the selected weight in millimeters: 0.1 for a selection outside 1 to 6, 0.0 without a
// combo.
double GetThicknessMM(KivComboWeight* combo);

// Deliberately inert: its guard is inverted, so that a combo keeps its selection whatever the number. Pages
// select weights by their index instead.
void SetThicknessMM(KivComboWeight* combo, const int& millimeters);

// Moves values between settings and lock-aware controls. Each operation refuses by E_FAIL and changes nothing
// then: without a control, for a command that is not the control that it is asked of, for a color component
// outside 0 to 255.
class KivDrwSettingsServices {
public:
    static HRESULT GetValueFromCheckButton(KivDrwLockCheckButton* button, KivCommand* from,
                                           unsigned char& value);
    static HRESULT UpdateCheckButton(KivDrwLockCheckButton* button, unsigned char value);

    static HRESULT GetValueFromComboColor(KivDrwLockComboColor* combo, KivCommand* from, int& r, int& g,
                                          int& b);
    static HRESULT UpdateComboColor(KivDrwLockComboColor* combo, int r, int g, int b);

    // The value is the spinner's, times the factor.
    static HRESULT GetValueFromSpinner(KivDrwLockSpinner* spinner, KivCommand* from, const double& factor,
                                       double& value);
    static HRESULT UpdateSpinner(KivDrwLockSpinner* spinner, const double& value);
};
