#include "Dialog/KivDlgEditor.h"

#include "Base/KivTextCatalogue.h"

KivUnicodeString KivDlgEditor::GetShownValue() const
{
    return _text.IsEmpty() ? KivTextCatalogue::FrameworkText("SettingEmptyText") : _text;
}

void KivDlgEditor::SetText(const KivUnicodeString& text, int notify)
{
    _text = text;
    Changed();
    if (notify) SendNotification(&_modified);
}

void KivDlgEditor::SetVisibleTextWidth(int characters)
{
    _textWidth = characters;
    Changed();
}

void KivDlgEditor::SetIsDirectory(bool isDirectory)
{
    _isDirectory = isDirectory;
    Changed();
}
