#pragma once

#include "Form/KivTypedBinding.h"
#include "Lock/KivDrwLockEditor.h"

// A text. It is stored as it was typed.
class KivTextBinding final : public KivTypedBinding<KivDrwLockEditor, KivUnicodeString> {
public:
    KivTextBinding(KivDrwLockEditor* editor, KivPropertyOf<KivUnicodeString>& property, Rule rule);

private:
    void ShowValue(KivDrwLockEditor& editor, const KivUnicodeString& value) override;
    std::optional<KivUnicodeString> Reading(KivDrwLockEditor& editor) override;
};
