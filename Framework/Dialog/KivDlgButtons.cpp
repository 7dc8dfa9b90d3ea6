#include "Dialog/KivDlgButtons.h"

#include "Base/KivTextCatalogue.h"

#include <algorithm>

KivUnicodeString KivDlgCheckButton::GetShownValue() const
{
    return KivTextCatalogue::FrameworkText(_state == KivDlgChecked ? "ValueOn" : "ValueOff");
}

void KivDlgCheckButton::SetState(unsigned long state, int notify)
{
    _state = state == KivDlgChecked ? KivDlgChecked : KivDlgUnchecked;
    Changed();
    if (notify) SendNotification(&_modified);
}

std::vector<KivDlgRadioButton*> KivDlgRadioButton::Choices() const
{
    std::vector<KivDlgRadioButton*> choices;
    if (!GetParentDialog()) return choices;
    for (KivDialog* sibling : GetParentDialog()->Children()) {
        if (sibling->IsAKindOf(Name)) choices.push_back(static_cast<KivDlgRadioButton*>(sibling));
    }
    std::stable_sort(choices.begin(), choices.end(), [](const KivDialog* a, const KivDialog* b) {
        const GridConstraints &first = a->GetGridConstraints(), &second = b->GetGridConstraints();
        return first.row != second.row ? first.row < second.row : first.column < second.column;
    });
    return choices;
}

KivUnicodeString KivDlgRadioButton::GetShownValue() const
{
    return _state == KivDlgChecked ? GetSpokenName() : KivUnicodeString();
}

void KivDlgRadioButton::SetState(unsigned long state, int notify)
{
    _state = state == KivDlgChecked ? KivDlgChecked : KivDlgUnchecked;
    if (_state == KivDlgChecked) {
        for (KivDlgRadioButton* other : Choices()) {
            if (other == this) continue;
            other->_state = KivDlgUnchecked;
            other->Changed(); // also one that was not the choice: why it is locked names the choice
        }
    }
    Changed();
    if (notify) SendNotification(&_modified);
}
