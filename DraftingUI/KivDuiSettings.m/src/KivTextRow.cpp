#include "KivTextRow.h"

#include <utility>

KivTextRow::KivTextRow(KivDrwLockEditor* editor, KivCachedValue<KivUnicodeString>& value, Rule rule)
    : KivPageRow(value, std::move(rule)), _editor(editor), _value(value)
{}

void KivTextRow::Show()
{
    if (KivDlgEditor* field = _editor ? _editor->GetEditor() : nullptr) field->SetText(_value.cached, 0);
}

void KivTextRow::Read()
{
    if (const KivDlgEditor* field = _editor ? _editor->GetEditor() : nullptr)
        _value.cached = field->GetText();
}
