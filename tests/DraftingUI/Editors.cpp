#include "KivDrwSettingAccess.h"
#include "Options/KivOptionsSession.h"
#include "SketcherTest.h"
#include "Tabs/KivDrwTabEditor.h"
#include "Tabs/KivDrwTabs.h"

#include <algorithm>

namespace {

template <class Editor> KivVar<Editor> Made()
{
    return KivVar<Editor>::Adopt(new Editor);
}

class Editors : public SketcherTest {
protected:
    void SetUp() override
    {
        KivDrwRepository()->AddListener([this](const auto&) { heard += "repository "; });
    }
    void Write(const char* key, int value) { KivDrwRepository()->WriteSetting(key, &value, 1, 0); }
};

TEST_F(Editors, CommitOnceUntilOneIsClosed)
{
    Write("Ruler", 1);
    {
        const auto first = Made<KivDrwOptGalEditor>();
        EXPECT_EQ(Heard(), "repository ");
        Write("Ruler", 0);
        const auto second = Made<KivDrwOptViewEditor>();
        EXPECT_EQ(Heard(), "") << "committed twice";
        EXPECT_EQ(KivDrwCommitSettingEditor::InitializeForCommit(), 0);
    }
    const auto third = Made<KivDrwOptGeoEditor>();
    EXPECT_EQ(Heard(), "repository ");
    KivDrwCommitSettingEditor::SetCommitToFalse();
    KivSettingRepository::Withhold(true);
    EXPECT_EQ(KivDrwCommitSettingEditor::InitializeForCommit(), 0);
    KivSettingRepository::Withhold(false);
    EXPECT_EQ(KivDrwCommitSettingEditor::InitializeForCommit(), 1) << "the next one tries again";
}

TEST_F(Editors, TellTheSketcherWhatTheirTabChanged)
{
    const auto general = Made<KivDrwOptGalEditor>();
    const auto geometry = Made<KivDrwOptGeoEditor>();
    const auto view = Made<KivDrwOptViewEditor>();
    Heard();
    general->CommitModification(nullptr);
    EXPECT_EQ(Heard(), "grid snap ");
    Write("Ruler", 1);
    general->CancelModification(nullptr);
    EXPECT_EQ(Heard(), "repository grid snap ");
    general->ResetUserSettingsValue();
    EXPECT_EQ(Heard(), "") << "deliberate";
    view->CommitModification(nullptr);
    view->CancelModification(nullptr);
    view->ResetUserSettingsValue();
    EXPECT_EQ(Heard(), "");
    KivSettingRepository::Withhold(true);
    geometry->CancelModification(nullptr);
    general->CommitModification(nullptr);
    EXPECT_EQ(Heard(), "");
}

// The host's controller component, as far as the Administration editor meets it.
class FakeController : public KivClass<FakeController, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivDrwDraftingSettingCtrl";
    static constexpr KivClassKind Kind = KivClassKind::MainClass;
    static inline std::string log;

    HRESULT SaveRepository()
    {
        log += "save ";
        return S_OK;
    }
    HRESULT Rollback()
    {
        log += "rollback ";
        return S_OK;
    }
    HRESULT ResetToAdminValuesByName(const KivVariant& names)
    {
        log += "reset " + std::to_string(names.texts.size()) + " ";
        return S_OK;
    }
};

TEST_F(Editors, AdministrationDoesNothingWithoutItsController)
{
    const auto editor = Made<KivDrwOptAdminEditor>();
    KivEditorPage page(nullptr, "page", 0UL);
    editor->BuildEditor(&page);
    EXPECT_TRUE(page.Children().empty());
    editor->CommitModification(nullptr);
    editor->CancelModification(nullptr);
    editor->ResetUserSettingsValue();
    EXPECT_EQ(Heard(), "");
    const auto manager = Made<KivUserSettingsManager>();
    const KivOptionsSession session(*manager.Get());
    EXPECT_EQ(session.FindPage("Administration"), nullptr);
    ASSERT_EQ(session.EmptyTabs().size(), 1U) << "what is not offered is known, so that it can be said";
    // The command line calls the groups of settings as their tabs are called.
    std::vector<KivUnicodeString> tabs;
    for (const KivOptionsSession::Page& tab : session.Pages()) tabs.push_back(tab.title);
    tabs.push_back(session.EmptyTabs()[0]);
    std::vector<KivUnicodeString> groups;
    for (const KivDrwGroup group : KivDrwCatalogue::Groups())
        groups.push_back(KivDrwCatalogue::NameOf(group));
    EXPECT_TRUE(std::is_permutation(tabs.begin(), tabs.end(), groups.begin(), groups.end()));
}

TEST_F(Editors, AdministrationSaysThatItsControllerIsMissing)
{
    KivDlgFrame root(nullptr, "root");
    auto* frame = new KivDrwOptAdminFrm(&root, "DrwSet");
    frame->Build();
    frame->Initialize();
    ASSERT_EQ(box.diagnostics.size(), 2U);
    const char* const file = "[File: DraftingUI/KivDuiSettings.m/src/KivDrwOptAdminFrm:";
    EXPECT_EQ(box.Said(std::string(">> ASSERTION FAILED ON POINTER:  ") + file), 1);
    EXPECT_EQ(box.Said(std::string(">> ASSERTION FAILED ON POINTER: KivDrwOptAdminFrm ") + file), 1);
    int style = 9;
    frame->GetCreateNewSheetFrom(style);
    EXPECT_EQ(style, 0);
    EXPECT_EQ(frame->GetResourceFile(-1), "KivDrwOptAdmin");
    EXPECT_EQ(frame->GetResourceFile(1), frame->KivDialog::GetResourceFile(0));
}

TEST_F(Editors, AdministrationSavesNothingWithoutTheAttributes)
{
    KivClassDictionary::Add(FakeController::MetaObject(), KivIASettingController::MetaObject(),
                            [](KivBaseUnknown* implementation) -> KivBaseUnknown* {
                                return new KivIASettingController::Forwarder<FakeController>(
                                    static_cast<FakeController*>(implementation));
                            });
    const auto editor = Made<KivDrwOptAdminEditor>();
    editor->CommitModification(nullptr);
    EXPECT_EQ(FakeController::log, "") << "deliberate";
    editor->CancelModification(nullptr);
    editor->ResetUserSettingsValue();
    EXPECT_EQ(FakeController::log, "rollback reset 11 ");
}

} // namespace
