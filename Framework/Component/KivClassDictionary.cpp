#include "Component/KivClassDictionary.h"

namespace {

struct Entry {
    const KivMetaClass* implementation;
    const KivMetaClass* interface;
    KivCreateTie create;
};

std::vector<Entry>& Entries()
{
    static auto& entries = *new std::vector<Entry>;
    return entries;
}

} // namespace

void KivClassDictionary::Add(const KivMetaClass* implementation, const KivMetaClass* interface,
                             KivCreateTie create)
{
    if (!FindTie(*implementation, interface->Id())) Entries().push_back({implementation, interface, create});
}

KivCreateTie KivClassDictionary::FindTie(const KivMetaClass& implementation, const IID& interfaceId)
{
    for (const Entry& entry : Entries()) {
        if (entry.implementation == &implementation && entry.interface->Id() == interfaceId)
            return entry.create;
    }
    return nullptr;
}

std::vector<const KivMetaClass*> KivClassDictionary::InterfacesOf(const KivMetaClass& implementation)
{
    std::vector<const KivMetaClass*> interfaces;
    for (const Entry& entry : Entries()) {
        if (entry.implementation == &implementation) interfaces.push_back(entry.interface);
    }
    return interfaces;
}

std::vector<const KivMetaClass*> KivClassDictionary::ClassesWith(const IID& interfaceId)
{
    std::vector<const KivMetaClass*> classes;
    for (const Entry& entry : Entries()) {
        if (entry.interface->Id() == interfaceId) classes.push_back(entry.implementation);
    }
    return classes;
}

HRESULT KivInstantiateComponent(const char* name, const IID& interfaceId, void** out)
{
    if (!out) return E_FAIL;
    *out = nullptr;
    const KivMetaClass* meta = KivMetaClass::Find(name);
    KivBaseUnknown* made = meta ? meta->CreateItself() : nullptr;
    if (!made) return E_FAIL;
    const HRESULT result = made->QueryInterface(interfaceId, out);
    made->Release();
    return result;
}
