#include "Dialog/KivDlgEditor.h"

void KivDlgEditor::SetText(const KivUnicodeString& text, int notify)
{
    _text = text;
    Changed();
    if (notify) SendNotification(&_modified);
}
