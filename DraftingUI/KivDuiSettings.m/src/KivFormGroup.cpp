#include "KivFormGroup.h"

#include "DrwOptionsServices.h"
#include "KivPageForm.h"
#include "KivPageRows.h"

#include <utility>

KivFormLine KivFormGroup::Line()
{
    return {_form, _frame, _lines++};
}

KivFormLine KivFormGroup::Line(const KivString& labelName)
{
    KivFormLine line = Line();
    line.Label(labelName);
    return line;
}

void KivFormLine::Place(KivDialog& control)
{
    control.SetGridConstraints(_line, _column++, 1, 1, KivDlgAttachAllSides);
}

void KivFormLine::Place(KivDrwLockDialog& control)
{
    Place(static_cast<KivDialog&>(control));
    KivDlgLabel* label = _label ? _label->GetDialog() : nullptr;
    if (label && !label->GetLabelledControl()) label->SetLabelledControl(control.GetDialog());
}

void KivFormLine::Label(const KivString& name)
{
    _label = new KivDrwLockLabel(&_frame, name, 1);
    Place(*_label);
}

KivDrwLockCheckButton* KivFormLine::Check(const KivString& name, KivCachedValue<unsigned char>& value,
                                          Rule rule)
{
    auto* button = new KivDrwLockCheckButton(&_frame, name, value.Info(), 0UL);
    Place(*button);
    _form.Connect(button->GetDialog(), button->GetChkBModifyNotification());
    _form.Add(std::make_unique<KivCheckRow>(button, value, std::move(rule)));
    return button;
}

KivDrwLockSpinner* KivFormLine::BareSpinner(const KivString& name, const KivSettingInfo& info)
{
    auto* spinner = new KivDrwLockSpinner(&_frame, name, info, 0UL);
    Place(*spinner);
    spinner->SetVisibleTextWidth(kKivSpinnerWidth);
    if (_label) spinner->SetLongHelp(_label->GetLongHelp());
    _form.Connect(spinner->GetDialog(), spinner->GetSpinnerModifyNotification());
    return spinner;
}

KivDrwLockSpinner* KivFormLine::Spinner(const KivString& name, KivCachedValue<double>& value,
                                        const KivSpinnerSetup& setup, Rule rule)
{
    KivDrwLockSpinner* spinner = BareSpinner(name, value.Info());
    spinner->SetValue(setup.initial, 0);
    spinner->SetMinMaxStep(setup.minimum, setup.maximum, setup.step);
    if (setup.magnitude == KivDlgMagnitudeAngle) {
        DrwOptionsServices::SetControlUnitToPqeAngle(spinner, setup.precision);
    } else {
        DrwOptionsServices::SetControlUnitToPqeLength(spinner, setup.precision);
    }
    _form.Add(std::make_unique<KivMeasureRow>(spinner, value, setup.shownPerStored, setup.storedPerShown,
                                              std::move(rule)));
    return spinner;
}

KivDrwLockSpinner* KivFormLine::Spinner(const KivString& name, KivCachedValue<int>& value,
                                        const KivCountSetup& setup, Rule rule)
{
    KivDrwLockSpinner* spinner = BareSpinner(name, value.Info());
    spinner->SetFormat("%g");
    spinner->SetRange(setup.minimum, setup.maximum, setup.values);
    _form.Add(std::make_unique<KivCountRow>(spinner, value, std::move(rule)));
    return spinner;
}

KivDrwLockComboColor* KivFormLine::Colour(const KivString& name, KivCachedValue<KivPageColour>& value,
                                          Rule rule)
{
    auto* combo = new KivDrwLockComboColor(&_frame, name, value.Info());
    Place(*combo);
    if (KivDlgCombo* inner = combo->GetCombo()) _form.Connect(inner, inner->GetComboSelectNotification());
    _form.Add(std::make_unique<KivColourRow>(combo, value, std::move(rule)));
    return combo;
}
