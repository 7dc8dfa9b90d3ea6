#pragma once

#include "Dialog/KivDlgSpinner.h"
#include "Lock/KivDrwLockControl.h"

// A lock-aware number field. Without a control, readers answer 0 or null and leave their outputs untouched.
class KivDrwLockSpinner : public KivDrwLockControlOf<KivDrwLockSpinner, KivDlgSpinner> {
public:
    static constexpr const char* Name = "KivDrwLockSpinner";
    KivDrwLockSpinner(KivSettingRepository* repository, const KivString& attributeName, KivDialog* parent,
                      const KivString& name, unsigned long style);
    KivDrwLockSpinner(KivDialog* parent, const KivString& name, const KivSettingInfo& info,
                      unsigned long style);

    float GetCurrentValue() const;
    void SetCurrentValue(float value, int notify);
    double GetValue() const;
    void SetValue(double value, int notify);

    void GetRange(float& minimum, float& maximum, int& steps) const;
    void SetRange(float minimum, float maximum, int steps);
    void GetRange(float& minimum, float& maximum, float& step) const;
    void SetRange(float minimum, float maximum, float step);
    void GetMinMaxStep(double& minimum, double& maximum, double& step) const;
    void SetMinMaxStep(double minimum, double maximum, double step);

    const char* GetFormat() const;
    void SetFormat(const char* format);
    int GetVisibleTextWidth() const;
    void SetVisibleTextWidth(int characters);
    KivNotification* GetSpinnerModifyNotification() const;
};
