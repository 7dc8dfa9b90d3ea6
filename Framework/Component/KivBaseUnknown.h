#pragma once

#include "Component/KivMetaClass.h"
#include "Component/KivUnknown.h"

#include <memory>

struct KivComponentParts;

// The base of every object of the framework: counted references, a meta-object, queries for interfaces. An
// object is made with one reference, its maker's; dialogs are owned by their parent instead and never
// counted.
class KivBaseUnknown : public IDispatch {
public:
    static constexpr const char* Name = "KivBaseUnknown";
    static constexpr const char* Framework = "Framework";
    static constexpr const char* LateType = "KivNull";
    static constexpr KivClassKind Kind = KivClassKind::Plain;

    HRESULT QueryInterface(const IID& interfaceId, void** out) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    HRESULT GetTypeInfoCount(unsigned int* count) override;
    HRESULT GetTypeInfo(unsigned int index, unsigned long locale, void** info) override;
    HRESULT GetIDsOfNames(const IID& reserved, const char** names, unsigned int count, unsigned long locale,
                          long* ids) override;
    HRESULT Invoke(long id, const IID& reserved, unsigned long locale, unsigned short flags, void* arguments,
                   void* result) override;
    virtual ~KivBaseUnknown();

    virtual KivMetaClass* GetMetaObject() const;
    // The name of the object's class, and 1 when that is the named class or derives from it.
    virtual const char* IsA() const;
    virtual int IsAKindOf(const char* className) const;
    // The object that an adapter or an extension stands for; itself for any other.
    virtual KivBaseUnknown* GetImpl();
    virtual void SetImpl(KivBaseUnknown* implementation);
    // 1 when there is nothing behind this object any more.
    virtual int IsNull() const;
    // 1 when both stand for the same object.
    virtual int IsEqual(KivBaseUnknown* other);
    // This object under the interface of that name, with a reference for the caller; null without one.
    virtual KivBaseUnknown* QueryInterface(const char* interfaceName);
    // Components of this framework have no states.
    virtual HRESULT ChangeComponentState(int from, int to);

    static KivMetaClass* MetaObject();
    static const IID& ClassId() { return MetaObject()->Id(); }
    static const char* ClassName() { return MetaObject()->Name(); }

    // The objects alive in this process, adapters and dialogs included; what tests compare before and after.
    static long LiveObjects();

    KivBaseUnknown(const KivBaseUnknown&) = delete;
    KivBaseUnknown& operator=(const KivBaseUnknown&) = delete;

protected:
    KivBaseUnknown();

private:
    friend class KivTieLink;
    KivBaseUnknown* FindInterface(const IID& interfaceId);
    KivComponentParts& Parts();

    unsigned int _references = 1;
    std::unique_ptr<KivComponentParts> _parts; // most objects never have any
};
