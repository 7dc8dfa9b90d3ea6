#pragma once

#include "Component/KivBaseUnknown.h"

#include <vector>

// Makes the adapter that shows an implementation under one interface; null when memory is short.
using KivCreateTie = KivBaseUnknown* (*)(KivBaseUnknown* implementation);

// Which class offers which interface through which adapter. Filled while libraries are loaded.
class KivClassDictionary {
public:
    static void Add(const KivMetaClass* implementation, const KivMetaClass* interface, KivCreateTie create);

    // How to show instances of exactly this class under an interface; null when it does not offer it.
    static KivCreateTie FindTie(const KivMetaClass& implementation, const IID& interfaceId);

    // The interfaces that a class offers itself, and the classes that offer an interface, in the order of
    // registration.
    static std::vector<const KivMetaClass*> InterfacesOf(const KivMetaClass& implementation);
    static std::vector<const KivMetaClass*> ClassesWith(const IID& interfaceId);
};

// One entry of the dictionary, made by a constant at namespace scope when its library is loaded. Libraries
// stay loaded, so entries are never taken out and there is nothing to run at exit.
class KivFillDictionary {
public:
    KivFillDictionary(const KivMetaClass* implementation, const KivMetaClass* interface, KivCreateTie create)
    {
        KivClassDictionary::Add(implementation, interface, create);
    }
};

// A new component of that name under one of its interfaces; the caller owns the reference. E_FAIL when no
// class of that name can be made, E_NOINTERFACE when it does not offer the interface; out is null then.
HRESULT KivInstantiateComponent(const char* name, const IID& interfaceId, void** out);
