#include "KivFormLine.h"

#include "DrwOptionsServices.h"
#include "KivPageForm.h"
#include "KivPageRows.h"

#include <utility>

KivFormLine& KivFormLine::At(short column, short columns)
{
    _column = column;
    _columns = columns;
    return *this;
}

KivFormLine& KivFormLine::Attached(unsigned int attachment)
{
    _attachment = attachment;
    return *this;
}

void KivFormLine::Place(KivDialog& control)
{
    control.SetGridConstraints(_line, _column, 1, _columns, _attachment);
    _column = static_cast<short>(_column + _columns);
    _columns = 1;
    _attachment = KivDlgAttachAllSides;
}

bool KivFormLine::LeavesOut(const KivBoundValue& value)
{
    if (!_form.LeavesOut(value)) return false;
    At(static_cast<short>(_column + _columns)).Attached(KivDlgAttachAllSides);
    return true;
}

void KivFormLine::Name(KivDialog* control)
{
    if (_label && !_label->GetLabelledControl()) _label->SetLabelledControl(control);
}

KivUnicodeString KivFormLine::LabelHelp() const
{
    return _label ? _label->GetLongHelp() : KivUnicodeString();
}

KivDrwLockLabel* KivFormLine::Label(const KivString& name)
{
    auto* label = new KivDrwLockLabel(&_frame, name, 1);
    _label = label->GetDialog();
    Place(*label);
    return label;
}

KivDlgLabel* KivFormLine::PlainLabel(const KivString& name)
{
    auto* label = new KivDlgLabel(&_frame, name, 0UL);
    _label = label;
    Place(*label);
    return label;
}

KivDrwLockLabel* KivFormLine::Spacer(const KivString& name)
{
    auto* spacer = new KivDrwLockLabel(&_frame, name, 0);
    Place(*spacer);
    return spacer;
}

KivDlgPushButton* KivFormLine::Push(const KivString& name)
{
    auto* button = new KivDlgPushButton(&_frame, name, 0UL);
    Place(*button);
    return button;
}

KivDrwLockCheckButton* KivFormLine::Check(const KivString& name, KivCachedValue<unsigned char>& value,
                                          Rule rule)
{
    if (LeavesOut(value)) return nullptr;
    auto* button = new KivDrwLockCheckButton(&_frame, name, value.Info(), 0UL);
    Place(*button);
    Name(button->GetDialog());
    _form.Connect(button->GetDialog(), button->GetChkBModifyNotification());
    _form.Add(std::make_unique<KivCheckRow>(button, value, std::move(rule)));
    return button;
}

KivDrwLockSpinner* KivFormLine::BareSpinner(const KivString& name, const KivSettingInfo& info, int width,
                                            unsigned long style)
{
    auto* spinner = new KivDrwLockSpinner(&_frame, name, info, style);
    Place(*spinner);
    Name(spinner->GetDialog());
    spinner->SetVisibleTextWidth(width);
    if (_label) spinner->SetLongHelp(LabelHelp());
    _form.Connect(spinner->GetDialog(), spinner->GetSpinnerModifyNotification());
    return spinner;
}

KivDrwLockSpinner* KivFormLine::Spinner(const KivString& name, KivCachedValue<double>& value,
                                        const KivSpinnerSetup& setup, Rule rule)
{
    if (LeavesOut(value)) return nullptr;
    KivDrwLockSpinner* spinner = BareSpinner(name, value.Info(), kKivSpinnerWidth);
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
    if (LeavesOut(value)) return nullptr;
    KivDrwLockSpinner* spinner = BareSpinner(name, value.Info(), kKivSpinnerWidth);
    spinner->SetFormat("%g");
    spinner->SetRange(setup.minimum, setup.maximum, setup.values);
    _form.Add(std::make_unique<KivCountRow>(spinner, value, std::move(rule)));
    return spinner;
}

KivDrwLockSpinner* KivFormLine::Spinner(const KivString& name, KivCachedValue<int>& value,
                                        const KivWholeSetup& setup, Rule rule)
{
    if (LeavesOut(value)) return nullptr;
    KivDrwLockSpinner* spinner = BareSpinner(name, value.Info(), setup.width, setup.style);
    spinner->SetUnit(setup.unit);
    spinner->SetPrecision(setup.precision);
    spinner->SetValue(setup.initial, 0);
    spinner->SetMinMaxStep(setup.minimum, setup.maximum, setup.step);
    _form.Add(std::make_unique<KivWholeRow>(spinner, value, std::move(rule)));
    return spinner;
}

KivDrwLockComboColor* KivFormLine::Colour(const KivString& name, KivCachedValue<KivPageColour>& value,
                                          Rule rule)
{
    if (LeavesOut(value)) return nullptr;
    auto* combo = new KivDrwLockComboColor(&_frame, name, value.Info());
    Place(*combo);
    Name(combo->GetDialog());
    if (KivDlgCombo* inner = combo->GetCombo()) _form.Connect(inner, inner->GetComboSelectNotification());
    _form.Add(std::make_unique<KivColourRow>(combo, value, std::move(rule)));
    return combo;
}

KivDrwLockCombo* KivFormLine::BareCombo(const KivString& name, const KivSettingInfo& info,
                                        unsigned long style)
{
    auto* combo = new KivDrwLockCombo(&_frame, name, info, style);
    Place(*combo);
    Name(combo->GetDialog());
    if (KivDlgCombo* inner = combo->GetCombo()) _form.Connect(inner, inner->GetComboSelectNotification());
    return combo;
}

KivDrwLockCombo* KivFormLine::Choice(const KivString& name, KivCachedValue<int>& value,
                                     const KivFormChoice& choice, unsigned long style, Rule rule)
{
    if (LeavesOut(value)) return nullptr;
    KivDrwLockCombo* combo = BareCombo(name, value.Info(), style);
    _form.Add(std::make_unique<KivChoiceRow>(combo, value, choice, std::move(rule)));
    return combo;
}

KivDrwLockCombo* KivFormLine::Names(const KivString& name, KivCachedValue<KivUnicodeString>& value,
                                    KivFormNames names, Rule rule)
{
    if (LeavesOut(value)) return nullptr;
    KivDrwLockCombo* combo = BareCombo(name, value.Info(), 0UL);
    _form.Add(std::make_unique<KivNameRow>(combo, value, names, std::move(rule)));
    return combo;
}
