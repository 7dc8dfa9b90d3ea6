#include "Dialog/KivDlgEditor.h"

#include "Base/KivTextCatalogue.h"

KivUnicodeString KivDlgEditor::GetShownValue() const
{
    return _text.IsEmpty() ? KivTextCatalogue::FrameworkText("SettingEmptyText") : _text;
}

void KivDlgEditor::SetText(const KivUnicodeString& text, int notify)
{
    _text = text;
    AskDirectory();
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
    AskDirectory();
    Changed();
}

void KivDlgEditor::CheckDirectory()
{
    const KivDirectoryState before = _directory.State();
    AskDirectory();
    if (_directory.State() != before) TellOfDirectory();
}

void KivDlgEditor::AskDirectory()
{
    if (_isDirectory && !_text.IsEmpty())
        _directory.Ask(_text);
    else
        _directory.Forget();
}

void KivDlgEditor::TellOfDirectory()
{
    Changed();
    SendNotification(&_directoryChanged);
}
