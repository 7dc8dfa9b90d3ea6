#include "Base/KivEnvironment.h"
#include "Component/KivExtensionAdapter.h"
#include "OptionsPages.h"
#include "Settings/KivIASettingController.h"

namespace {

class OptionsManager : public OptionsPages {
protected:
    void SetUp() override { manager = std::make_unique<KivUserSettingsManager>(); }
};

TEST_F(OptionsManager, FindsTheFactoryOfEveryTabThroughTheDictionary)
{
    const char* const editors[] = {
#define KIV_TAB(Editor, ...) #Editor,
#include "KivDrwTabs.def"
    };
    const auto factories = manager->Factories();
    ASSERT_EQ(factories.size(), std::size(editors));
    for (const KivUnicodeString editor : editors) {
        int supporters = 0;
        for (const auto& factory : factories) {
            if (!factory->Support(editor)) continue;
            ++supporters;
            const std::string factoryName = std::string(editor.View()) + "Factory";
            const KivMetaClass* meta = factory->GetImpl()->GetMetaObject();
            EXPECT_EQ(meta->Name(), factoryName);
            EXPECT_EQ(meta->Kind(), KivClassKind::Extension);
            EXPECT_STREQ(meta->LateType(), "KivEditorManager2");
            EXPECT_STREQ(meta->Framework(), "DraftingUI");
            EXPECT_TRUE(meta->IsAKindOf("KivExtensionAdapter"));
            const std::string interfaceName = "KivI" + factoryName.substr(3);
            EXPECT_TRUE(factory->IsAKindOf(interfaceName.c_str()));
            const KivMetaClass* interface = KivMetaClass::Find(KivMakeIID(interfaceName));
            ASSERT_NE(interface, nullptr);
            EXPECT_EQ(interface, KivMetaClass::Find(interfaceName.c_str()));
            EXPECT_EQ(interface->Kind(), KivClassKind::Interface);
            const auto first = KivVar<KivBaseUnknown>::Adopt(factory->Create("KivIUserSettings"));
            const auto second = KivVar<KivBaseUnknown>::Adopt(factory->Create("KivIUserSettings"));
            ASSERT_TRUE(first && second);
            EXPECT_FALSE(first->IsEqual(second.Get()));
            EXPECT_TRUE(first->GetImpl()->IsAKindOf("KivEditor"));
            EXPECT_EQ(first->GetImpl()->GetMetaObject()->CreateItself(), nullptr)
                << "only factories make editors";
            EXPECT_EQ(factory->Create("KivINobody"), nullptr);
        }
        EXPECT_EQ(supporters, 1) << editor.View();
    }
    for (const auto& factory : factories) EXPECT_FALSE(factory->Support("") || factory->Support("KivEditor"));
    EXPECT_EQ(manager->CreateEditors().size(), std::size(editors));
}

TEST_F(OptionsManager, OffersThePagesThatHaveSomethingToShow)
{
    Open();
    std::string titles;
    for (const KivOptionsSession::Page& page : session->Pages())
        titles += std::string(page.title.View()) + " ";
    EXPECT_TRUE(titles.starts_with("General Layout View Generation Geometry Dimension Manipulators "
                                   "Annotation Compatibility Administration "))
        << titles;
    const KivOptionsSession::Page& page = session->Pages()[0];
    EXPECT_EQ(page.title, "General");
    EXPECT_NE(page.frame->FindDialog("DrwSet"), nullptr);
    EXPECT_EQ(session->FindPage("general"), &page);
    EXPECT_EQ(session->FindPage("kivdrwoptgaleditor"), &page);
    EXPECT_EQ(session->FindPage("Fonts"), nullptr);
}

TEST_F(OptionsManager, SaysWhichLibraryCannotBeLoaded)
{
    EXPECT_FALSE(KivLoadLibrary("KivNobody"));
    ASSERT_EQ(box.diagnostics.size(), 1U);
    EXPECT_EQ(box.diagnostics[0].file, "libKivNobody.so");
}

TEST_F(OptionsManager, AdaptersAndEditorsAndPagesMayDieInAnyOrder)
{
    auto editors = manager->CreateEditors();
    KivEditorPage* page = new KivEditorPage(nullptr, "page", 0UL);
    for (const auto& editor : editors) editor.settings->BuildEditor(page);
    delete page;
    for (const auto& editor : editors) {
        editor.settings->SetUserSettingsValue(nullptr);
        editor.settings->CancelModification(nullptr);
    }
    // An adapter is made once, is both of its kinds, and bears that what it shows is gone.
    KivBaseUnknown* const shown = editors[0].settings->GetImpl();
    EXPECT_EQ(KivVar<KivIUserSettings>(shown).Get(), editors[0].settings.Get());
    EXPECT_TRUE(editors[0].settings->IsAKindOf("KivEditor") && editors[0].settings->IsEqual(shown));
    delete shown;
    EXPECT_TRUE(editors[0].settings->IsNull());
    EXPECT_EQ(editors[0].settings->QueryInterface("KivIUserSettings"), nullptr);
    editors[0].settings->CommitModification(nullptr);
    // The factories and their manager go first: an editor stands alone.
    const KivVar<KivIUserSettings> last = editors[2].settings;
    const auto factories = manager->Factories();
    editors.clear();
    last->CommitModification(nullptr);
    KivBaseUnknown* const extension = factories[0]->GetImpl();
    EXPECT_NE(static_cast<KivExtensionAdapter*>(extension)->GetImpl(), nullptr);
    manager.reset();
    EXPECT_EQ(static_cast<KivExtensionAdapter*>(extension)->GetImpl(), nullptr) << "it outlives its owner";
}

TEST_F(OptionsManager, ComponentsAreMadeByNameAndUnknownOnesLeaveNothing)
{
    constexpr const char* kController = "KivDrwDraftingSettingCtrl";
    void* out = this;
    EXPECT_EQ(KivInstantiateComponent("KivNobody", KivIASettingController::ClassId(), &out), E_FAIL);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(KivInstantiateComponent(kController, KivMakeIID("KivINobody"), &out), E_NOINTERFACE);
    EXPECT_EQ(out, nullptr);
    ASSERT_EQ(KivInstantiateComponent(kController, KivIASettingController::ClassId(), &out), S_OK);
    EXPECT_TRUE(KivVar<KivIASettingController>::Adopt(static_cast<KivIASettingController*>(out)));
}

// Static objects with destructors would run code of ours after the framework is gone.
TEST_F(OptionsManager, NothingOfOursRunsAtExit)
{
    for (const char* library : {"libKivFramework.so", "libKivDuiSettings.so"}) {
        const std::string path = std::string(KivInstallRoot().View()) + "/lib/" + library;
        EXPECT_NE(std::system(("nm -D --undefined-only '" + path + "' | grep -q __cxa_atexit").c_str()), 0)
            << library;
    }
}

} // namespace
