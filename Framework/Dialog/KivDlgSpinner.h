#pragma once

#include "Dialog/KivDlgControl.h"

// A field for a number with arrows. Lengths are kept in meters and angles in radians, whatever unit is shown.
class KivDlgSpinner : public KivClass<KivDlgSpinner, KivDlgControl> {
public:
    static constexpr const char* Name = "KivDlgSpinner";
    using KivClass::KivClass;

    // The value, as precisely as a double holds it. A page may set any finite one, also out of the range that
    // a user is held to: what is stored is what is shown. Not zero: listeners are told.
    void SetValue(double value, int notify);
    double GetValue() const { return _value; }
    void SetCurrentValue(float value, int notify) { SetValue(static_cast<double>(value), notify); }
    float GetCurrentValue() const { return static_cast<float>(_value); }

    // What a user may enter, and by how much an arrow changes it. Given in steps, the range is cut into as
    // many; the last argument is the framework's. An empty range (maximum below minimum) is ignored.
    void SetMinMaxStep(double minimum, double maximum, double step, int reserved);
    void GetMinMaxStep(double& minimum, double& maximum, double& step) const;
    void SetRange(float minimum, float maximum, int steps, int reserved);
    void GetRange(float& minimum, float& maximum, int& steps) const;
    void SetRange(float minimum, float maximum, float step, int reserved);
    void GetRange(float& minimum, float& maximum, float& step) const;

    // A person may type whole numbers only. Pages are not held to it, as with the range.
    void SetWholeNumbers(bool wholeNumbers) { _wholeNumbers = wholeNumbers; }
    bool HasWholeNumbers() const { return _wholeNumbers; }

    // How a number without a unit is printed, in the manner of "%g"; null or empty: by the precision.
    void SetFormat(const char* format);
    const char* GetFormat() const { return _format.ConvertToChar(); }
    // Characters to make room for beside the unit; 0 leaves it to the view.
    void SetVisibleTextWidth(int characters);
    int GetVisibleTextWidth() const { return _textWidth; }

    // A value as the field shows it, with its unit.
    KivUnicodeString Print(double value) const;
    KivUnicodeString GetShownValue() const override { return Print(_value); }
    // What a typed text means; false, and the output untouched, when it means nothing.
    bool Read(const KivUnicodeString& text, double& value) const;

    // What a user has entered.
    KivNotification* GetSpinnerModifyNotification() const { return &_modified; }

private:
    double _value = 0.0;
    double _minimum = 0.0;
    double _maximum = 100.0;
    double _step = 1.0;
    bool _wholeNumbers = false;
    KivString _format;
    int _textWidth = 0;
    mutable KivNotification _modified{"KivDlgSpinnerModifyNotification"};
};
