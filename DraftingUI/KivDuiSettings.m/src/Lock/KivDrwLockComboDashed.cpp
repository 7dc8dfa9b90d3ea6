#include "Lock/KivDrwLockComboDashed.h"

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

namespace {

constexpr unsigned int kBreakLineEntry = 8;
constexpr unsigned int kBreakLineStored = 0;

} // namespace

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
