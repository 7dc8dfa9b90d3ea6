#include "Component/KivBaseUnknown.h"

#include "Component/KivClassDictionary.h"
#include "Component/KivComponentParts.h"
#include "Component/KivTieLink.h"

namespace {

long liveObjects = 0;

} // namespace

KivBaseUnknown::KivBaseUnknown()
{
    ++liveObjects;
}

KivBaseUnknown::~KivBaseUnknown()
{
    if (_parts) {
        // Each loop's callee takes its entry out of the list.
        while (!_parts->ties.empty()) _parts->ties.back()->ImplementationDies();
        for (KivBaseUnknown* extension : _parts->extensions) {
            extension->SetImpl(nullptr);
            extension->Release();
        }
    }
    --liveObjects;
}

long KivBaseUnknown::LiveObjects()
{
    return liveObjects;
}

unsigned int KivBaseUnknown::AddRef()
{
    return ++_references;
}

unsigned int KivBaseUnknown::Release()
{
    const unsigned int left = --_references;
    if (left == 0) delete this;
    return left;
}

HRESULT KivBaseUnknown::QueryInterface(const IID& interfaceId, void** out)
{
    if (!out) return E_FAIL;
    *out = FindInterface(interfaceId);
    return *out ? S_OK : E_NOINTERFACE;
}

KivBaseUnknown* KivBaseUnknown::QueryInterface(const char* interfaceName)
{
    const KivMetaClass* interface = KivMetaClass::Find(interfaceName);
    void* found = nullptr;
    // Through the virtual query, so that adapters and extensions ask the object that they stand for.
    return interface && QueryInterface(interface->Id(), &found) == S_OK ? static_cast<KivBaseUnknown*>(found)
                                                                        : nullptr;
}

KivBaseUnknown* KivBaseUnknown::FindInterface(const IID& interfaceId)
{
    if (_parts) {
        for (KivTieLink* tie : _parts->ties) {
            if (tie->InterfaceId() == interfaceId) return tie->Share();
        }
    }
    for (const KivMetaClass* meta = GetMetaObject(); meta; meta = meta->Base()) {
        if (const auto create = KivClassDictionary::FindTie(*meta, interfaceId)) {
            KivBaseUnknown* tie = create(this);
            if (tie) tie->AddRef();
            return tie;
        }
        for (const KivMetaClass* extension : meta->Extensions()) {
            if (!KivClassDictionary::FindTie(*extension, interfaceId)) continue;
            for (KivBaseUnknown* made : Parts().extensions) {
                if (made->GetMetaObject() == extension) return made->FindInterface(interfaceId);
            }
            KivBaseUnknown* made = extension->CreateItself();
            if (!made) return nullptr;
            made->SetImpl(this);
            Parts().extensions.push_back(made);
            return made->FindInterface(interfaceId);
        }
    }
    return nullptr;
}

KivComponentParts& KivBaseUnknown::Parts()
{
    if (!_parts) _parts = std::make_unique<KivComponentParts>();
    return *_parts;
}

KivMetaClass* KivBaseUnknown::MetaObject()
{
    static KivMetaClass* const meta =
        KivMetaClass::Retrieve({.name = Name, .framework = Framework, .size = sizeof(KivBaseUnknown)});
    return meta;
}

KivMetaClass* KivBaseUnknown::GetMetaObject() const
{
    return MetaObject();
}
const char* KivBaseUnknown::IsA() const
{
    return GetMetaObject()->Name();
}
int KivBaseUnknown::IsAKindOf(const char* className) const
{
    return GetMetaObject()->IsAKindOf(className);
}
KivBaseUnknown* KivBaseUnknown::GetImpl()
{
    return this;
}
void KivBaseUnknown::SetImpl(KivBaseUnknown*) {}
int KivBaseUnknown::IsNull() const
{
    return 0;
}
int KivBaseUnknown::IsEqual(KivBaseUnknown* other)
{
    return other && other->GetImpl() == GetImpl();
}
HRESULT KivBaseUnknown::ChangeComponentState(int, int)
{
    return E_NOTIMPL;
}

HRESULT KivBaseUnknown::GetTypeInfoCount(unsigned int* count)
{
    if (count) *count = 0;
    return E_NOTIMPL;
}
HRESULT KivBaseUnknown::GetTypeInfo(unsigned int, unsigned long, void**)
{
    return E_NOTIMPL;
}
HRESULT KivBaseUnknown::GetIDsOfNames(const IID&, const char**, unsigned int, unsigned long, long*)
{
    return E_NOTIMPL;
}
HRESULT KivBaseUnknown::Invoke(long, const IID&, unsigned long, unsigned short, void*, void*)
{
    return E_NOTIMPL;
}
