#pragma once

#include "Component/KivClassDictionary.h"
#include "Component/KivTieLink.h"

#include <new>

// An adapter: shows an Implementation under an Interface. Each interface derives its Forwarder from this,
// which passes the interface's operations on to _impl.
template <class Interface, class Implementation> class KivTie : public Interface {
public:
    explicit KivTie(Implementation* implementation) : _link(this, implementation, Interface::ClassId()) {}

    HRESULT QueryInterface(const IID& interfaceId, void** out) override
    {
        if (KivBaseUnknown* implementation = _link.Implementation())
            return implementation->QueryInterface(interfaceId, out);
        if (out) *out = nullptr;
        return E_NOINTERFACE;
    }
    KivBaseUnknown* QueryInterface(const char* interfaceName) override
    {
        return KivBaseUnknown::QueryInterface(interfaceName);
    }
    unsigned int AddRef() override { return _link.AddRef(); }
    unsigned int Release() override { return _link.Release(); }

    KivMetaClass* GetMetaObject() const override
    {
        static KivMetaClass* const meta = KivMetaClass::MakeTieRecord(Interface::MetaObject());
        return meta;
    }
    const char* IsA() const override { return GetMetaObject()->Name(); }
    // An adapter is both: its interface and, while there is one, its implementation.
    int IsAKindOf(const char* className) const override
    {
        return GetMetaObject()->IsAKindOf(className) || (Impl() && Impl()->IsAKindOf(className));
    }
    KivBaseUnknown* GetImpl() override { return _link.Implementation(); }
    int IsNull() const override { return !_link.Implementation(); }

protected:
    // Null once the implementation is gone; a forwarded operation then does nothing.
    Implementation* Impl() const { return static_cast<Implementation*>(_link.Implementation()); }

private:
    KivTieLink _link;
};

// The adapter class of one class and one interface, its creation function and its entry in the dictionary.
// The three names are written out where it is used, so that each can be searched for.
#define KIV_IMPLEMENT_TIE(Tie, CreateTie, Interface, Class)                                                  \
    class Tie final : public Interface::Forwarder<Class> {                                                   \
    public:                                                                                                  \
        using Interface::Forwarder<Class>::Forwarder;                                                        \
    };                                                                                                       \
    KivBaseUnknown* CreateTie(KivBaseUnknown* implementation)                                                \
    {                                                                                                        \
        return new (std::nothrow) Tie(static_cast<Class*>(implementation));                                  \
    }                                                                                                        \
    static const KivFillDictionary fill##Tie(Class::MetaObject(), Interface::MetaObject(), &CreateTie);
