#include "Dialog/KivDlgSpinner.h"

#include "Parameter/KivMeasure.h"
#include "Parameter/KivNumberFormat.h"

#include <algorithm>
#include <cmath>
#include <limits>

void KivDlgSpinner::SetValue(double value, int notify)
{
    if (!std::isfinite(value)) return;
    _value = value;
    Changed();
    if (notify) SendNotification(&_modified);
}

void KivDlgSpinner::SetMinMaxStep(double minimum, double maximum, double step, int)
{
    if (!(minimum <= maximum) || !std::isfinite(step)) return;
    _minimum = minimum;
    _maximum = maximum;
    _step = step;
    Changed();
}

void KivDlgSpinner::GetMinMaxStep(double& minimum, double& maximum, double& step) const
{
    minimum = _minimum;
    maximum = _maximum;
    step = _step;
}

void KivDlgSpinner::SetRange(float minimum, float maximum, int steps, int reserved)
{
    if (steps <= 0) return;
    const double from = static_cast<double>(minimum), to = static_cast<double>(maximum);
    SetMinMaxStep(from, to, (to - from) / std::max(steps - 1, 1), reserved);
}

void KivDlgSpinner::GetRange(float& minimum, float& maximum, int& steps) const
{
    minimum = static_cast<float>(_minimum);
    maximum = static_cast<float>(_maximum);
    const double exact = (_step > 0.0 ? (_maximum - _minimum) / _step : 0.0) + 1.0;
    steps = exact < std::numeric_limits<int>::max() ? static_cast<int>(std::lround(exact))
                                                    : std::numeric_limits<int>::max();
}

void KivDlgSpinner::SetRange(float minimum, float maximum, float step, int reserved)
{
    SetMinMaxStep(static_cast<double>(minimum), static_cast<double>(maximum), static_cast<double>(step),
                  reserved);
}

void KivDlgSpinner::GetRange(float& minimum, float& maximum, float& step) const
{
    minimum = static_cast<float>(_minimum);
    maximum = static_cast<float>(_maximum);
    step = static_cast<float>(_step);
}

void KivDlgSpinner::SetFormat(const char* format)
{
    _format = format;
    Changed();
}

void KivDlgSpinner::SetVisibleTextWidth(int characters)
{
    _textWidth = characters;
    Changed();
}

KivUnicodeString KivDlgSpinner::Print(double value) const
{
    if (GetUnit() == KivDlgUnitNone) return KivPrintNumber(value, GetFormat(), GetPrecision());
    return KivMeasure::Print(value, GetUnit(), GetPrecision());
}

bool KivDlgSpinner::Read(const KivUnicodeString& text, double& value) const
{
    return KivMeasure::Read(text, GetUnit(), value);
}
