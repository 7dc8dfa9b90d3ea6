#include "Form/KivTextRow.h"

#include <utility>

KivTextRow::KivTextRow(KivDrwLockEditor* editor, KivPropertyOf<KivUnicodeString>& property, Rule rule)
    : KivValueRow(editor, property, std::move(rule))
{}

void KivTextRow::ShowValue(KivDrwLockEditor& editor, const KivUnicodeString& value)
{
    if (KivDlgEditor* field = editor.GetEditor()) field->SetText(value, 0);
}

std::optional<KivUnicodeString> KivTextRow::Reading(KivDrwLockEditor& editor)
{
    const KivDlgEditor* field = editor.GetEditor();
    if (!field) return {};
    return field->GetText();
}
