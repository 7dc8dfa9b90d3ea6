#include "Component/KivTieLink.h"

#include "Component/KivComponentParts.h"

KivTieLink::KivTieLink(KivBaseUnknown* tie, KivBaseUnknown* implementation, const IID& interfaceId)
    : _tie(tie), _implementation(implementation), _interfaceId(interfaceId)
{
    if (_implementation) _implementation->Parts().ties.push_back(this);
}

KivTieLink::~KivTieLink()
{
    if (_implementation) std::erase(_implementation->Parts().ties, this);
}

unsigned int KivTieLink::AddRef()
{
    ++_holders;
    return _implementation ? _implementation->AddRef() : _holders;
}

unsigned int KivTieLink::Release()
{
    if (_holders > 0) --_holders;
    // The implementation's last reference takes this adapter along: nothing of it may be touched afterwards.
    if (_implementation) return _implementation->Release();
    const unsigned int left = _holders;
    if (left == 0) delete _tie;
    return left;
}

KivBaseUnknown* KivTieLink::Share()
{
    AddRef();
    return _tie;
}

void KivTieLink::ImplementationDies()
{
    std::erase(_implementation->Parts().ties, this);
    _implementation = nullptr;
    if (_holders == 0) delete _tie;
}
