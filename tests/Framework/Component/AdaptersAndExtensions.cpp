#include "Component/KivExtensionAdapter.h"
#include "Component/KivTie.h"
#include "Component/KivVar.h"

#include <gtest/gtest.h>

namespace {

class KivITestAnswer : public KivClass<KivITestAnswer, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivITestAnswer";
    static constexpr KivClassKind Kind = KivClassKind::Interface;
    virtual int Answer() const = 0;

    template <class Implementation> class Forwarder : public KivTie<KivITestAnswer, Implementation> {
    public:
        using KivTie<KivITestAnswer, Implementation>::KivTie;
        int Answer() const override { return this->Impl() ? this->Impl()->Answer() : -1; }
    };
};

class KivTestComponent : public KivClass<KivTestComponent, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivTestComponent";
    static constexpr KivClassKind Kind = KivClassKind::MainClass;
    static constexpr const char* LateType = "KivTestLateType";
    int Answer() const { return 42; }
};
class KivTestDerived : public KivClass<KivTestDerived, KivTestComponent> {
public:
    static constexpr const char* Name = "KivTestDerived";
};
KIV_IMPLEMENT_TIE(TIEKivITestAnswerKivTestComponent, CreateTIEKivITestAnswerKivTestComponent, KivITestAnswer,
                  KivTestComponent)

class KivITestExtra : public KivClass<KivITestExtra, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivITestExtra";
    static constexpr KivClassKind Kind = KivClassKind::Interface;
    virtual KivBaseUnknown* Whose() = 0;

    template <class Implementation> class Forwarder : public KivTie<KivITestExtra, Implementation> {
    public:
        using KivTie<KivITestExtra, Implementation>::KivTie;
        KivBaseUnknown* Whose() override { return this->Impl() ? this->Impl()->Whose() : nullptr; }
    };
};
class KivTestExtension : public KivClass<KivTestExtension, KivExtensionAdapter> {
public:
    static constexpr const char* Name = "KivTestExtension";
    KivBaseUnknown* Whose() { return GetImpl(); }
};
KIV_IMPLEMENT_TIE(TIEKivITestExtraKivTestExtension, CreateTIEKivITestExtraKivTestExtension, KivITestExtra,
                  KivTestExtension)

class Component : public testing::Test {
protected:
    void SetUp() override
    {
        KivTestExtension::MetaObject()->DeclareExtensionOf(KivTestComponent::MetaObject());
    }
    void TearDown() override { EXPECT_EQ(KivBaseUnknown::LiveObjects(), _before); }

private:
    long _before = KivBaseUnknown::LiveObjects();
};

TEST_F(Component, AdapterKeepsItsImplementationAliveAndIsMadeOnce)
{
    auto* component = new KivTestDerived;
    KivVar<KivITestAnswer> first(component);
    const KivVar<KivITestAnswer> second(component);
    ASSERT_TRUE(first);
    EXPECT_EQ(first.Get(), second.Get());
    EXPECT_EQ(component->Release(), 2U);
    EXPECT_EQ(first->Answer(), 42);
    EXPECT_TRUE(first->IsAKindOf("KivITestAnswer"));
    EXPECT_TRUE(first->IsAKindOf("KivTestComponent"));
    EXPECT_TRUE(first->IsEqual(component));
}

TEST_F(Component, AdapterThatOutlivesItsImplementationDoesNothing)
{
    KivVar<KivITestAnswer> adapter;
    {
        KivTestComponent onStack;
        adapter = KivVar<KivITestAnswer>(&onStack);
    }
    EXPECT_EQ(adapter->Answer(), -1);
    EXPECT_TRUE(adapter->IsNull());
    EXPECT_FALSE(KivVar<KivITestAnswer>(adapter.Get()));
    EXPECT_EQ(adapter->QueryInterface("KivITestAnswer"), nullptr);
}

TEST_F(Component, ExtensionBelongsToItsComponentAndMayOutliveIt)
{
    auto* component = new KivTestDerived;
    KivVar<KivITestExtra> extra(component);
    ASSERT_TRUE(extra);
    EXPECT_EQ(extra->Whose(), component);
    EXPECT_EQ(KivVar<KivITestExtra>(component).Get(), extra.Get());
    component->Release();
    EXPECT_EQ(extra->Whose(), nullptr);
}

TEST_F(Component, ComponentsAreMadeByNameAndUnknownInterfacesLeaveNothing)
{
    void* out = this;
    EXPECT_EQ(KivInstantiateComponent("KivTestNobody", KivITestAnswer::ClassId(), &out), E_FAIL);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(KivInstantiateComponent(KivTestComponent::ClassName(), KivMakeIID("KivINobody"), &out),
              E_NOINTERFACE);
    EXPECT_EQ(out, nullptr);
    ASSERT_EQ(KivInstantiateComponent(KivTestComponent::ClassName(), KivITestAnswer::ClassId(), &out), S_OK);
    EXPECT_EQ(KivVar<KivITestAnswer>::Adopt(static_cast<KivITestAnswer*>(out))->Answer(), 42);
    EXPECT_STREQ(KivMetaClass::Find("KivTestComponent")->LateType(), "KivTestLateType");
}

} // namespace
