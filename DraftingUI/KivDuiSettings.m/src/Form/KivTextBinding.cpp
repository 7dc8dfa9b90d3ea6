#include "Form/KivTextBinding.h"

#include <utility>

KivTextBinding::KivTextBinding(KivDrwLockEditor* editor, KivPropertyOf<KivUnicodeString>& property, Rule rule)
    : KivTypedBinding(editor, property, std::move(rule))
{}

void KivTextBinding::ShowValue(KivDrwLockEditor& editor, const KivUnicodeString& value)
{
    if (KivDlgEditor* field = editor.GetEditor()) field->SetText(value, 0);
}

std::optional<KivUnicodeString> KivTextBinding::Reading(KivDrwLockEditor& editor)
{
    const KivDlgEditor* field = editor.GetEditor();
    if (!field) return {};
    return field->GetText();
}
