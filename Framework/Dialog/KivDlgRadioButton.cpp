#include "Dialog/KivDlgRadioButton.h"

#include <algorithm>

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

void KivDlgRadioButton::SetState(unsigned long state, int notify)
{
    _state = state == KivDlgChecked ? KivDlgChecked : KivDlgUnchecked;
    if (_state == KivDlgChecked) {
        for (KivDlgRadioButton* other : Choices()) {
            if (other == this || other->_state != KivDlgChecked) continue;
            other->_state = KivDlgUnchecked;
            other->Changed();
        }
    }
    Changed();
    if (notify) SendNotification(&_modified);
}
