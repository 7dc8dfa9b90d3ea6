#include "Common/DraftingText.h"

#include "Base/KivTextCatalogue.h"
#include "Common/NativeText.h"

QString DraftingText(const char* key)
{
    return ToQt(KivTextCatalogue::Open("KivDrafting").Text(key));
}
