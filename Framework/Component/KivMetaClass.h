#pragma once

#include "Component/KivIID.h"

#include <cstddef>
#include <vector>

class KivBaseUnknown;

// What a class is in the component model; the numbers are the framework's.
enum class KivClassKind { Plain = 0, MainClass = 1, Interface = 2, Extension = 3, Tie = 4 };

// What is told of a class when its meta-object is made. The texts have to outlive the process's use of them.
struct KivClassFacts {
    const char* name = "";
    KivClassKind kind = KivClassKind::Plain;
    const class KivMetaClass* base = nullptr;
    const char* lateType = "KivNull"; // of a component: its own; of an extension: that which it extends
    const char* framework = "";
    std::size_t size = 0;                        // of an instance, in bytes
    KivBaseUnknown* (*createItself)() = nullptr; // null for classes that only their users construct
};

// The meta-object of a class: its identity, its place among the classes, how to make one. Owned by the
// framework, never destroyed, one a name.
class KivMetaClass {
public:
    // The meta-object of that name, made from these facts if there is none yet.
    static KivMetaClass* Retrieve(const KivClassFacts& facts);
    // The meta-object of a class or an interface by its name or its identifier; null when nobody has made it.
    static KivMetaClass* Find(const char* name);
    static KivMetaClass* Find(const IID& id);

    const IID& Id() const { return _id; }
    const char* Name() const { return _facts.name; }
    KivClassKind Kind() const { return _facts.kind; }
    const KivMetaClass* Base() const { return _facts.base; }
    const char* LateType() const { return _facts.lateType; }
    const char* Framework() const { return _facts.framework; }
    std::size_t Size() const { return _facts.size; }

    // A new instance with one reference, or null.
    KivBaseUnknown* CreateItself() const { return _facts.createItself ? _facts.createItself() : nullptr; }

    // 1 when this class or one of its bases has that name.
    int IsAKindOf(const char* name) const;

    // Makes this class an extension of a component; nothing when there is no such component or it is one
    // already.
    void DeclareExtensionOf(KivMetaClass* component);
    const std::vector<const KivMetaClass*>& Extensions() const { return _extensions; }

    // For adapters: a record of its own beside the registered classes, which bears the interface's identity.
    static KivMetaClass* MakeTieRecord(const KivMetaClass* interface);

private:
    explicit KivMetaClass(const KivClassFacts& facts) : _id(KivMakeIID(facts.name)), _facts(facts) {}

    IID _id;
    KivClassFacts _facts;
    std::vector<const KivMetaClass*> _extensions;
};
