#pragma once

#include "Component/KivClassDictionary.h"
#include "Component/KivVar.h"

// A controller component of the drafting settings under one of its interfaces; empty when it cannot be had.
template <class Interface> KivVar<Interface> KivDrwSettingController()
{
    void* found = nullptr;
    KivInstantiateComponent("KivDrwDraftingSettingCtrl", Interface::ClassId(), &found);
    return KivVar<Interface>::Adopt(static_cast<Interface*>(static_cast<KivBaseUnknown*>(found)));
}
