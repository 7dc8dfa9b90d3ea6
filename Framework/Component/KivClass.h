#pragma once

#include "Component/KivBaseUnknown.h"

#include <new>
#include <type_traits>

// Gives a class its meta-object operations: class KivX : public KivClass<KivX, ItsBase>. Self states its Name
// and, where they are not its base's, its Framework, LateType and Kind.
template <class Self, class Base> class KivClass : public Base {
public:
    using Base::Base;

    KivMetaClass* GetMetaObject() const override { return Self::MetaObject(); }
    const char* IsA() const override { return GetMetaObject()->Name(); }
    int IsAKindOf(const char* className) const override { return GetMetaObject()->IsAKindOf(className); }

    static KivMetaClass* MetaObject()
    {
        static KivMetaClass* const meta = KivMetaClass::Retrieve({.name = Self::Name,
                                                                  .kind = Self::Kind,
                                                                  .base = Base::MetaObject(),
                                                                  .lateType = Self::LateType,
                                                                  .framework = Self::Framework,
                                                                  .size = sizeof(Self),
                                                                  .createItself = &Self::CreateItself});
        return meta;
    }
    static const IID& ClassId() { return MetaObject()->Id(); }
    static const char* ClassName() { return MetaObject()->Name(); }

    // A new instance with one reference; null when memory is short or the class needs more than nothing.
    static KivBaseUnknown* CreateItself()
    {
        if constexpr (std::is_default_constructible_v<Self> && !std::is_abstract_v<Self>) {
            return new (std::nothrow) Self;
        } else {
            return nullptr;
        }
    }
};
