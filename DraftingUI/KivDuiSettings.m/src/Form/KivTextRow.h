#pragma once

#include "Form/KivPageRow.h"
#include "Lock/KivDrwLockEditor.h"

// A text. It is stored as it was typed.
class KivTextRow final : public KivValueRow<KivDrwLockEditor, KivUnicodeString> {
public:
    KivTextRow(KivDrwLockEditor* editor, KivPropertyOf<KivUnicodeString>& property, Rule rule);

private:
    void ShowValue(KivDrwLockEditor& editor, const KivUnicodeString& value) override;
    std::optional<KivUnicodeString> Reading(KivDrwLockEditor& editor) override;
};
