#pragma once

#include "Component/KivBaseUnknown.h"

#include <utility>

// A handle that holds one reference of an interface and gives it back.
template <class Interface> class KivVar {
public:
    KivVar() = default;
    // Asks any object for the interface; empty when it does not offer it.
    explicit KivVar(IUnknown* object)
    {
        void* found = nullptr;
        if (object && object->QueryInterface(Interface::ClassId(), &found) == S_OK)
            _held = static_cast<Interface*>(static_cast<KivBaseUnknown*>(found));
    }
    // Takes over a reference that the caller owns.
    static KivVar Adopt(Interface* owned)
    {
        KivVar handle;
        handle._held = owned;
        return handle;
    }
    KivVar(const KivVar& other) : _held(other._held)
    {
        if (_held) _held->AddRef();
    }
    KivVar(KivVar&& other) noexcept : _held(std::exchange(other._held, nullptr)) {}
    KivVar& operator=(KivVar other) noexcept
    {
        std::swap(_held, other._held);
        return *this;
    }
    ~KivVar()
    {
        if (_held) _held->Release();
    }

    Interface* Get() const { return _held; }
    Interface* operator->() const { return _held; }
    explicit operator bool() const { return _held != nullptr; }

private:
    Interface* _held = nullptr;
};
