#pragma once

#include "Base/KivUnicodeString.h"
#include "Component/KivBaseUnknown.h"

// What every factory interface of page editors looks like: each page has an interface of its own, with these
// two operations, so that the options manager can drive them all.
class KivEditorFactory : public KivBaseUnknown {
public:
    // 1 when this factory makes editors of that class.
    virtual unsigned char Support(const KivUnicodeString& editorName) const = 0;
    // A new editor under the interface of that name, with a reference for the caller; null when editors do
    // not offer it.
    virtual KivBaseUnknown* Create(const KivUnicodeString& interfaceName) const = 0;
};
