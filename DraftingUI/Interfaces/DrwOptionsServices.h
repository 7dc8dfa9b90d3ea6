#pragma once

class KivDlgControl;
class KivDrwLockControl;

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
