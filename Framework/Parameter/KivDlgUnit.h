#pragma once

// What a control's value is a measure of. The numbers are kept by controls and passed as they are; 11 is what
// a control answers that has no magnitude of its own to answer.
enum KivDlgMagnitude : int {
    KivDlgMagnitudeNone = 0,    // a plain number
    KivDlgMagnitudeLength = 11, // stored in meters
    KivDlgMagnitudeAngle = 12,  // stored in radians
    KivDlgMagnitudeTime = 13,   // stored in seconds
};

// The unit in which a control shows its value and takes what is typed.
enum KivDlgUnit : int {
    KivDlgUnitNone = 0, // a plain number, shown as it is stored
    KivDlgUnitRadian = 11,
    KivDlgUnitDegree = 12,
    KivDlgUnitGrade = 13,
    KivDlgUnitMeter = 41,
    KivDlgUnitMillimeter = 42,
    KivDlgUnitCentimeter = 43,
    KivDlgUnitKilometer = 44,
    KivDlgUnitInch = 45,
    KivDlgUnitFoot = 46,
    KivDlgUnitFeetInchOver64 = 47,
    KivDlgUnitFeetInchOver16 = 48,
    KivDlgUnitFeetDecimalInch = 49,
    KivDlgUnitSecond = 97,
};
