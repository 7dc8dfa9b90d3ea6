#include "Form/KivFormGroup.h"

#include "Form/KivControlBindings.h"
#include "Form/KivPageForm.h"

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

KivFormGroup KivFormGroup::Part(const KivString& name, short columns)
{
    auto* part = new KivDlgFrame(&_frame, name, KivDlgGridLayout);
    part->SetGridConstraints(_lines++, 0, 1, columns, KivDlgAttachAllSides);
    return {_form, *part};
}

KivDrwLockFrame* KivFormGroup::Radios(const KivString& name, KivPropertyOf<int>& property,
                                      const KivSettingKind& kind, KivFormLine::Rule rule)
{
    const short line = _lines++;
    if (_form.LeavesOut(property)) return nullptr;
    auto* frame = new KivDrwLockFrame(&_frame, name, property.Info(), KivDlgGridLayout);
    frame->SetGridConstraints(line, 0, 1, 1, KivDlgAttachAllSides);
    std::vector<KivRadioBinding::Button> buttons;
    short row = 0;
    for (const KivSettingChoice& choice : kind.Choices()) {
        auto* button = new KivDlgRadioButton(frame->GetDialog(), choice.name, 0UL);
        button->SetGridConstraints(row++, 0, 1, 1, KivDlgAttachAllSides);
        _form.Connect(button, button->GetRadBModifyNotification());
        buttons.push_back({button, choice.value});
    }
    _form.Add(std::make_unique<KivRadioBinding>(frame, property, std::move(buttons), kind.otherwise,
                                                std::move(rule)));
    return frame;
}
