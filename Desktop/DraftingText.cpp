#include "DraftingText.h"

#include "Base/KivTextCatalogue.h"
#include "NativeText.h"

QString DraftingText(const char* key)
{
    const KivUnicodeString text = KivTextCatalogue::Open("KivDrafting").Find(key);
    return text.IsEmpty() ? QString::fromUtf8(key) : ToQt(text);
}
