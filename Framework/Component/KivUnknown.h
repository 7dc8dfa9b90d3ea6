#pragma once

#include "Base/KivResult.h"
#include "Component/KivIID.h"

// The two oldest layers of the component model: counted references and queries, then scripted calls by name.
class IUnknown {
public:
    // Delivers this object under another interface and adds a reference for the caller; E_NOINTERFACE and
    // null when it has no such interface.
    virtual HRESULT QueryInterface(const IID& interfaceId, void** out) = 0;
    // Both answer the number of references that are then held; at 0 the object is gone.
    virtual unsigned int AddRef() = 0;
    virtual unsigned int Release() = 0;

protected:
    ~IUnknown() = default;
};

// Nothing in this framework is scripted: every object answers E_NOTIMPL.
class IDispatch : public IUnknown {
public:
    virtual HRESULT GetTypeInfoCount(unsigned int* count) = 0;
    virtual HRESULT GetTypeInfo(unsigned int index, unsigned long locale, void** info) = 0;
    virtual HRESULT GetIDsOfNames(const IID& reserved, const char** names, unsigned int count,
                                  unsigned long locale, long* ids) = 0;
    virtual HRESULT Invoke(long id, const IID& reserved, unsigned long locale, unsigned short flags,
                           void* arguments, void* result) = 0;

protected:
    ~IDispatch() = default;
};
