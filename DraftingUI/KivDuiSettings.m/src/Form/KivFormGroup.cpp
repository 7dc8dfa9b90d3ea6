#include "Form/KivFormGroup.h"

#include "Form/KivControlBindings.h"
#include "Form/KivPageForm.h"

#include <utility>

KivFormRow KivFormGroup::Row()
{
    return {_form, _frame, _rows++};
}

KivFormRow KivFormGroup::Row(const KivString& labelName)
{
    KivFormRow row = Row();
    row.Label(labelName);
    return row;
}

KivFormGroup KivFormGroup::Part(const KivString& name, short columns)
{
    auto* part = new KivDlgFrame(&_frame, name, KivDlgGridLayout);
    part->SetGridConstraints(_rows++, 0, 1, columns, KivDlgAttachAllSides);
    return {_form, *part};
}

KivDrwLockFrame* KivFormGroup::Radios(const KivString& name, KivPropertyOf<int>& property,
                                      const KivSettingKind& kind, KivFormRow::Rule rule)
{
    const short row = _rows++;
    const auto record = _form.RecordOf(property);
    if (!record) return nullptr;
    auto* frame = new KivDrwLockFrame(&_frame, name, *record, KivDlgGridLayout);
    frame->SetGridConstraints(row, 0, 1, 1, KivDlgAttachAllSides);
    std::vector<KivRadioBinding::Button> buttons;
    short buttonRow = 0;
    for (const KivSettingChoice& choice : kind.Choices()) {
        auto* button = new KivDlgRadioButton(frame->GetDialog(), choice.name, 0UL);
        button->SetGridConstraints(buttonRow++, 0, 1, 1, KivDlgAttachAllSides);
        _form.Connect(button, button->GetRadBModifyNotification());
        buttons.push_back({button, choice.value});
    }
    _form.Add(std::make_unique<KivRadioBinding>(frame, property, std::move(buttons), kind.otherwise,
                                                std::move(rule)));
    return frame;
}
