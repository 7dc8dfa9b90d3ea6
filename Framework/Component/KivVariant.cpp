#include "Component/KivVariant.h"

#include <new>

KivVariant* BuildSafeArrayVariant(const KivUnicodeString* texts, long count)
{
    if (!texts || count <= 0) return nullptr;
    return new (std::nothrow) KivVariant{{texts, texts + count}};
}

void FreeVariantSafeArray(KivVariant* variant)
{
    delete variant;
}
