#pragma once

#include "Component/KivBaseUnknown.h"

// The reference routines that all adapters share: an adapter has no count of its own but takes part in its
// implementation's, so that both live and die together.
class KivTieLink {
public:
    KivTieLink(KivBaseUnknown* tie, KivBaseUnknown* implementation, const IID& interfaceId);
    ~KivTieLink();
    KivTieLink(const KivTieLink&) = delete;
    KivTieLink& operator=(const KivTieLink&) = delete;

    const IID& InterfaceId() const { return _interfaceId; }
    // Null once the implementation was destroyed although this adapter still had holders.
    KivBaseUnknown* Implementation() const { return _implementation; }

    unsigned int AddRef();
    unsigned int Release();
    // The adapter with a reference more.
    KivBaseUnknown* Share();
    // The adapter goes with its implementation, unless somebody holds it: then it stays, standing for
    // nothing, until its last holder lets go.
    void ImplementationDies();

private:
    KivBaseUnknown* _tie;
    KivBaseUnknown* _implementation;
    IID _interfaceId;
    unsigned int _holders = 0; // references that were taken through this adapter
};
