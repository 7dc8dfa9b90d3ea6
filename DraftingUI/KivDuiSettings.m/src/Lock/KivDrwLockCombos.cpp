#include "Lock/KivDrwLockCombos.h"

namespace {

constexpr unsigned int kBreakLineEntry = 8;
constexpr unsigned int kBreakLineStored = 0;

} // namespace

KivDrwLockComboColor::KivDrwLockComboColor(KivSettingRepository* repository, const KivString& attributeName,
                                           KivDialog* parent, const KivString& name, unsigned long style,
                                           unsigned int red, unsigned int green, unsigned int blue, int flag)
    : KivDrwLockControlOf(repository, attributeName, parent, name)
{
    Wrap(MakeControl(name, style, red, green, blue, flag, 0, 0));
}

KivDrwLockComboColor::KivDrwLockComboColor(KivDialog* parent, const KivString& name,
                                           const KivSettingInfo& info)
    : KivDrwLockControlOf(parent, name, info)
{
    // White until the page sets the real color.
    Wrap(MakeControl(name, 0UL, 255U, 255U, 255U, 0, 0, 0));
}

KivDlgCombo* KivDrwLockComboColor::GetCombo() const
{
    return Wrapped() ? Wrapped()->GetCombo() : nullptr;
}

int KivDrwLockComboColor::GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue) const
{
    return Wrapped() ? Wrapped()->GetSelectedColor(red, green, blue) : 0;
}

int KivDrwLockComboColor::GetSelectedColor(unsigned int* red, unsigned int* green, unsigned int* blue,
                                           KivUnicodeString* name) const
{
    if (Wrapped()) Wrapped()->GetSelectedColor(red, green, blue, name);
    return 0;
}

void KivDrwLockComboColor::SetSelectedColor(unsigned int red, unsigned int green, unsigned int blue)
{
    if (Wrapped()) Wrapped()->SetSelectedColor(red, green, blue);
}

KivDrwLockComboDashed::KivDrwLockComboDashed(KivSettingRepository* repository, const KivString& attributeName,
                                             KivDialog* parent, const KivString& name, char withBreakLine,
                                             unsigned long style, unsigned int variant)
    : KivDrwLockControlOf(repository, attributeName, parent, name)
{
    KivComboDashed* combo = MakeControl(name, style, variant, 0);
    if (!combo) return;
    if (withBreakLine) combo->AddOtherType("S_DrwBreakLine8", 1);
    Wrap(combo);
}

KivDlgCombo* KivDrwLockComboDashed::GetCombo() const
{
    return Wrapped() ? Wrapped()->GetCombo() : nullptr;
}

unsigned int KivDrwLockComboDashed::GetSelect() const
{
    const unsigned int entry = Wrapped() ? Wrapped()->GetSelect() : kBreakLineStored;
    return entry == kBreakLineEntry ? kBreakLineStored : entry;
}

void KivDrwLockComboDashed::SetSelect(unsigned int type)
{
    if (Wrapped()) Wrapped()->SetSelect(type == kBreakLineStored ? kBreakLineEntry : type);
}

void KivDrwLockComboDashed::SetVisibleTextWidth(int characters)
{
    if (KivDlgCombo* combo = GetCombo()) combo->SetVisibleTextWidth(characters);
}

void KivDrwLockComboDashed::SetVisibleTextHeight(int lines)
{
    if (KivDlgCombo* combo = GetCombo()) combo->SetVisibleTextHeight(lines);
}

KivDrwLockComboWeight::KivDrwLockComboWeight(KivSettingRepository* repository, const KivString& attributeName,
                                             KivDialog* parent, const KivString& name, unsigned long style,
                                             unsigned int variant)
    : KivDrwLockControlOf(repository, attributeName, parent, name)
{
    Wrap(MakeControl(name, style, variant, 0));
}

KivDlgCombo* KivDrwLockComboWeight::GetCombo() const
{
    return Wrapped() ? Wrapped()->GetCombo() : nullptr;
}

unsigned int KivDrwLockComboWeight::GetSelect() const
{
    return Wrapped() ? Wrapped()->GetSelect() : 1;
}

void KivDrwLockComboWeight::SetSelect(unsigned int weight)
{
    if (Wrapped()) Wrapped()->SetSelect(weight);
}
