#include "Form/KivFormRow.h"

#include "Base/KivTextCatalogue.h"
#include "Form/KivControlBindings.h"
#include "Form/KivPageForm.h"
#include "KivDrwControlServices.h"
#include "Settings/KivSettingRepository.h"

#include <utility>

namespace {

// Of the combos of line types and weights, in characters and entries.
constexpr int kLineComboWidth = 8;
constexpr int kLineComboHeight = 8;

} // namespace

KivFormRow& KivFormRow::At(short column, short columns)
{
    _column = column;
    _columns = columns;
    return *this;
}

KivFormRow& KivFormRow::Attached(unsigned int attachment)
{
    _attachment = attachment;
    return *this;
}

void KivFormRow::Put(KivDialog& control)
{
    control.SetGridConstraints(_row, _column, 1, _columns, _attachment);
    _column = static_cast<short>(_column + _columns);
    _columns = 1;
    _attachment = KivDlgAttachAllSides;
}

std::optional<KivSettingInfo> KivFormRow::RecordOf(const KivProperty& property)
{
    const std::optional<KivSettingInfo> record = _form.RecordOf(property);
    if (!record) At(static_cast<short>(_column + _columns)).Attached(KivDlgAttachAllSides);
    return record;
}

void KivFormRow::Name(KivDialog* control)
{
    if (_label) _label->AddLabeledControl(control);
}

KivUnicodeString KivFormRow::LabelHelp() const
{
    return _label ? _label->GetLongHelp() : KivUnicodeString();
}

KivDrwLockLabel* KivFormRow::Label(const KivString& name)
{
    auto* label = new KivDrwLockLabel(&_frame, name, 1);
    _label = label->GetDialog();
    Put(*label);
    return label;
}

KivDlgLabel* KivFormRow::PlainLabel(const KivString& name)
{
    auto* label = new KivDlgLabel(&_frame, name, 0UL);
    _label = label;
    Put(*label);
    return label;
}

KivDrwLockLabel* KivFormRow::Picture(const KivString& name)
{
    auto* picture = new KivDrwLockLabel(&_frame, name, 1);
    picture->SetTitle("");
    Put(*picture);
    return picture;
}

KivDrwLockLabel* KivFormRow::Spacer(const KivString& name)
{
    auto* spacer = new KivDrwLockLabel(&_frame, name, 0);
    Put(*spacer);
    return spacer;
}

KivDlgPushButton* KivFormRow::Push(const KivString& name)
{
    auto* button = new KivDlgPushButton(&_frame, name, 0UL);
    if (!KivSettingRepository::EditedLayer().IsEmpty()) button->LeadToLocks();
    Put(*button);
    return button;
}

KivDrwLockCheckButton* KivFormRow::Check(const KivString& name, KivPropertyOf<unsigned char>& property,
                                         Rule rule)
{
    return CheckOf(name, property, false, std::move(rule));
}

KivDrwLockCheckButton* KivFormRow::Check(const KivString& name, KivPropertyOf<int>& property, Rule rule)
{
    return CheckOf(name, property, false, std::move(rule));
}

KivDrwLockCheckButton* KivFormRow::Check(const KivString& name, KivPropertyOf<int>& property,
                                         const KivSettingKind& kind)
{
    return CheckOf(name, property, kind.isOnFor1Alone, {});
}

template <class T> KivDrwLockCheckButton*
KivFormRow::CheckOf(const KivString& name, KivPropertyOf<T>& property, bool isOnFor1Alone, Rule rule)
{
    const auto record = RecordOf(property);
    if (!record) return nullptr;
    auto* button = new KivDrwLockCheckButton(&_frame, name, *record, 0UL);
    Put(*button);
    Name(button->GetDialog());
    _form.Connect(button->GetDialog(), button->GetChkBModifyNotification());
    _form.Add(std::make_unique<KivCheckBinding<T>>(button, property, isOnFor1Alone, std::move(rule)));
    return button;
}

KivDrwLockSpinner* KivFormRow::BareSpinner(const KivString& name, const KivSettingInfo& info,
                                           const KivSettingKind& kind, const KivSpinnerLook& look)
{
    auto* spinner = new KivDrwLockSpinner(&_frame, name, info, look.style);
    Put(*spinner);
    Name(spinner->GetDialog());
    spinner->SetVisibleTextWidth(look.width);
    if (kind.format) spinner->SetFormat(kind.format);
    spinner->SetPrecision(kind.decimals);
    if (kind.magnitude == KivDlgMagnitudeLength)
        DrwOptionsServices::SetControlUnitToPqeLength(spinner, kind.decimals);
    if (kind.magnitude == KivDlgMagnitudeAngle)
        DrwOptionsServices::SetControlUnitToPqeAngle(spinner, kind.decimals);
    if (kind.magnitude == KivDlgMagnitudeTime) spinner->SetUnit(KivDlgUnitSecond);
    spinner->SetValue(kind.initial, 0);
    spinner->SetMinMaxStep(kind.minimum * kind.shownPerStored, kind.maximum * kind.shownPerStored,
                           kind.step * kind.shownPerStored);
    FillRange(*spinner, kind);
    if (_label) spinner->SetLongHelp(LabelHelp());
    _form.Connect(spinner->GetDialog(), spinner->GetSpinnerModifyNotification());
    return spinner;
}

// Helps that speak of the range have placeholders for it, so that it stands in the kind alone and in the
// user's unit.
void KivFormRow::FillRange(KivDrwLockSpinner& spinner, const KivSettingKind& kind)
{
    if (!spinner.GetDialog()) return;
    auto& field = *static_cast<KivDlgSpinner*>(spinner.GetDialog());
    const KivUnicodeString least = field.Print(kind.minimum * kind.shownPerStored);
    const KivUnicodeString greatest = field.Print(kind.maximum * kind.shownPerStored);
    field.SetHelp(KivTextCatalogue::Fill(field.GetHelp(), {least, greatest}));
    if (_label) _label->SetLongHelp(KivTextCatalogue::Fill(_label->GetLongHelp(), {least, greatest}));
}

KivDrwLockSpinner* KivFormRow::Spinner(const KivString& name, KivPropertyOf<double>& property,
                                       const KivSettingKind& kind, Rule rule, const KivSpinnerLook& look)
{
    const auto record = RecordOf(property);
    if (!record) return nullptr;
    KivDrwLockSpinner* spinner = BareSpinner(name, *record, kind, look);
    _form.Add(std::make_unique<KivMeasureBinding>(spinner, property, kind, std::move(rule)));
    return spinner;
}

KivDrwLockSpinner* KivFormRow::Spinner(const KivString& name, KivPropertyOf<int>& property,
                                       const KivSettingKind& kind, Rule rule, const KivSpinnerLook& look)
{
    const auto record = RecordOf(property);
    if (!record) return nullptr;
    KivDrwLockSpinner* spinner = BareSpinner(name, *record, kind, look);
    if (auto* field = static_cast<KivDlgSpinner*>(spinner->GetDialog()))
        field->SetWholeNumbers(!kind.cutsFractions);
    _form.Add(std::make_unique<KivWholeNumberBinding>(spinner, property, std::move(rule)));
    return spinner;
}

KivDrwLockComboColor* KivFormRow::Color(const KivString& name, KivPropertyOf<KivPageColor>& property,
                                        Rule rule)
{
    const auto record = RecordOf(property);
    if (!record) return nullptr;
    auto* combo = new KivDrwLockComboColor(&_frame, name, *record);
    PutNamed(*combo, combo->GetCombo());
    _form.Add(std::make_unique<KivColorBinding>(combo, property, std::move(rule)));
    return combo;
}

void KivFormRow::PutNamed(KivDrwLockDialog& wrapper, KivDlgCombo* combo)
{
    Put(wrapper);
    Name(wrapper.GetDialog());
    if (combo) _form.Connect(combo, combo->GetComboSelectNotification());
}

KivDrwLockCombo* KivFormRow::BareCombo(const KivString& name, const KivSettingInfo& info, unsigned long style)
{
    auto* combo = new KivDrwLockCombo(&_frame, name, info, style);
    PutNamed(*combo, combo->GetCombo());
    return combo;
}

KivDrwLockCombo* KivFormRow::Choice(const KivString& name, KivPropertyOf<int>& property,
                                    const KivSettingKind& kind, unsigned long style, Rule rule)
{
    const auto record = RecordOf(property);
    if (!record) return nullptr;
    KivDrwLockCombo* combo = BareCombo(name, *record, style);
    _form.Add(std::make_unique<KivChoiceBinding>(combo, property, kind, std::move(rule)));
    return combo;
}

KivDrwLockCombo* KivFormRow::Names(const KivString& name, KivPropertyOf<KivUnicodeString>& property,
                                   KivFormNames names, Rule rule)
{
    const auto record = RecordOf(property);
    if (!record) return nullptr;
    KivDrwLockCombo* combo = BareCombo(name, *record, 0UL);
    _form.Add(std::make_unique<KivNameBinding>(combo, property, names, std::move(rule)));
    return combo;
}

KivDrwLockComboDashed* KivFormRow::LineType(const KivString& name, KivPropertyOf<unsigned int>& property,
                                            KivSettingRepository* repository, const KivString& key)
{
    constexpr char kWithBreakLine = 1;
    auto* combo = new KivDrwLockComboDashed(repository, key, &_frame, name, kWithBreakLine, 0UL, 0U);
    PutNamed(*combo, combo->GetCombo());
    combo->SetVisibleTextWidth(kLineComboWidth);
    combo->SetVisibleTextHeight(kLineComboHeight);
    _form.Add(std::make_unique<KivLineTypeBinding>(combo, property, Rule()));
    return combo;
}

KivDrwLockComboWeight* KivFormRow::LineWeight(const KivString& name, KivPropertyOf<unsigned int>& property,
                                              KivSettingRepository* repository, const KivString& key)
{
    auto* combo = new KivDrwLockComboWeight(repository, key, &_frame, name, 0UL, 0U);
    PutNamed(*combo, combo->GetCombo());
    if (KivDlgCombo* inner = combo->GetCombo()) {
        inner->SetVisibleTextHeight(kLineComboHeight);
        inner->SetVisibleTextWidth(kLineComboWidth);
    }
    _form.Add(std::make_unique<KivLineWeightBinding>(combo, property, Rule()));
    return combo;
}

KivDrwLockEditor* KivFormRow::Text(const KivString& name, KivPropertyOf<KivUnicodeString>& property,
                                   int width, Rule rule)
{
    const auto record = RecordOf(property);
    if (!record) return nullptr;
    auto* editor = new KivDrwLockEditor(&_frame, name, *record, 0UL);
    Put(*editor);
    Name(editor->GetDialog());
    if (KivDlgEditor* field = editor->GetEditor()) {
        field->SetVisibleTextWidth(width);
        _form.Connect(field, field->GetEditModifyNotification());
    }
    _form.Add(std::make_unique<KivTextBinding>(editor, property, std::move(rule)));
    return editor;
}
