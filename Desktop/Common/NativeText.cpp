#include "Common/NativeText.h"

#include "Base/KivTextCatalogue.h"

QString ToQt(const KivUnicodeString& text)
{
    return QString::fromUtf8(text.ConvertToChar(), text.GetLengthInByte());
}

KivUnicodeString FromQt(const QString& text)
{
    return KivUnicodeString(text.toStdString());
}

QString WindowText(const char* key)
{
    return ToQt(KivTextCatalogue::Open("KivDesktop").Text(key));
}

QString DraftingText(const char* key)
{
    return ToQt(KivTextCatalogue::Open("KivDrafting").Text(key));
}
