#pragma once

#include "Base/KivResult.h"

class KivCommand;
class KivDrwLockCheckButton;
class KivDrwLockComboColor;
class KivDrwLockSpinner;

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
