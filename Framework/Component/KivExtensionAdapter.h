#pragma once

#include "Component/KivClass.h"

// The base of extensions that hold no data of their own: code that a library adds to a component of the
// framework. The component makes it when one of its interfaces is first asked for, and lets go of it at its
// end.
class KivExtensionAdapter : public KivClass<KivExtensionAdapter, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivExtensionAdapter";
    static constexpr KivClassKind Kind = KivClassKind::Extension;

    KivExtensionAdapter() = default;
    // It has no state: a copy is as new, with a reference count of its own.
    KivExtensionAdapter(const KivExtensionAdapter&) : KivExtensionAdapter() {}
    KivExtensionAdapter& operator=(const KivExtensionAdapter&) { return *this; }

    // The component that is extended; null when it is gone.
    KivBaseUnknown* GetImpl() override { return _component; }
    void SetImpl(KivBaseUnknown* component) override { _component = component; }
    int IsNull() const override { return !_component; }

private:
    KivBaseUnknown* _component = nullptr;
};
