#pragma once

#include "KivDrwLockEditor.h"
#include "KivPageRow.h"

// A text. It is stored as it was typed.
class KivTextRow final : public KivPageRow {
public:
    KivTextRow(KivDrwLockEditor* editor, KivCachedValue<KivUnicodeString>& value, Rule rule);
    void Show() override;
    void Read() override;

private:
    KivDrwLockDialog* Control() const override { return _editor.Get(); }

    KivWeakPtr<KivDrwLockEditor> _editor;
    KivCachedValue<KivUnicodeString>& _value;
};
