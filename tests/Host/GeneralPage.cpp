#include "Dialog/KivComboColor.h"
#include "Dialog/KivDlgCheckButton.h"
#include "Dialog/KivDlgLabel.h"
#include "Dialog/KivDlgLock.h"
#include "Dialog/KivDlgSpinner.h"
#include "Dialog/KivTextCatalogue.h"
#include "Dialog/KivUserHand.h"
#include "Options/KivOptionsSession.h"
#include "Parameter/KivParmDictionary.h"
#include "Parameter/KivParmEngine.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace {

class GeneralPage : public testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(KivUserSettingsManager::LoadPages("KivDuiSettings")); }
    void TearDown() override
    {
        session.reset();
        manager.reset();
        KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, "MM");
        EXPECT_EQ(KivBaseUnknown::LiveObjects(), _before);
    }

    void Open()
    {
        session.reset();
        KivSettingRepository::ForgetAll();
        if (!manager) manager = std::make_unique<KivUserSettingsManager>();
        session = std::make_unique<KivOptionsSession>(*manager);
        ASSERT_EQ(session->Pages().size(), 1U);
    }
    template <class T> T& Node(const std::string& name)
    {
        KivDialog* node = session->Root().FindDialog(name.c_str());
        EXPECT_NE(node, nullptr) << name;
        return *static_cast<T*>(node);
    }
    KivDlgCheckButton& Check(const std::string& name) { return Node<KivDlgCheckButton>(name + "_dialog"); }
    KivDlgSpinner& Spinner(const std::string& name) { return Node<KivDlgSpinner>(name + "_dialog"); }
    KivComboColor& Colour(const std::string& name) { return Node<KivComboColor>(name + "_dialog"); }

    KivSettingRepository& Repository() { return *KivSettingRepository::GetRepository("DraftingOptions"); }
    template <class T> T Stored(const char* key, T value)
    {
        Repository().ReadSetting(key, &value, 1);
        return value;
    }
    // Everything that the repository holds, as "key = value".
    std::map<std::string, std::string> All()
    {
        std::map<std::string, std::string> all;
        char name[256], type[256];
        long count = 0;
        for (int restart = 1; Repository().NextAttribute(name, type, &count, restart) == S_OK; restart = 0) {
            KivSettingInfo info;
            Repository().GetInfo(name, &info, 0);
            all[name] = info.value.View();
        }
        return all;
    }

    KivSettingsSandbox box;
    std::filesystem::path file = box.File("user");
    std::unique_ptr<KivUserSettingsManager> manager;
    std::unique_ptr<KivOptionsSession> session;

private:
    long _before = KivBaseUnknown::LiveObjects();
};

// What drives each control to another value, and the keys that it may change.
struct Row {
    const char* control;
    std::set<std::string> keys;
};

const Row kChecks[] = {
    {"checkRuler", {"Ruler"}},
    {"checkGrid", {"Drw_settings_GridDisplay"}},
    {"checkSnap", {"Drw_settings_GridSnapPt"}},
    {"checkAllowDistortions", {"Drw_settings_AllowDistortions"}},
    {"checkRotSnapAuto", {"RotSnapAuto"}},
    {"checkGraduatedColor", {"GraduatedColor"}},
    {"checkGraduatedColorDD", {"GraduatedColorDitto"}},
    {"_checkTreeParameters", {"TreeParameters"}},
    {"_checkTreeFormulas", {"TreeFormulas"}},
    {"checkViewReferential", {"ViewReferential"}},
    {"checkViewRefZoom", {"ViewRefZoom"}},
    {"chkHideStartWkb", {"HideWhenStartWkb"}},
};
const Row kSpinners[] = {
    {"editorGridSpacing", {"Drw_settings_GridPrimarySpacing"}},
    {"editorGridSpacingV", {"Drw_settings_GridVPrimarySpacing"}},
    {"editorGridGraduation", {"Drw_settings_GridSecondaryStep"}},
    {"editorGridGraduationV", {"Drw_settings_GridVSecondaryStep"}},
    {"spinnerRotSnapAngle", {"RotSnapAngle"}},
    {"spinnerViewAxisSize", {"ViewAxisSize"}},
};
const Row kColours[] = {
    {"comboBackgroundColor", {"BackgroundColorRed", "BackgroundColorGreen", "BackgroundColorBlue"}},
    {"comboBackgroundColorDD",
     {"BackgroundColorRedDitto", "BackgroundColorGreenDitto", "BackgroundColorBlueDitto"}},
};

TEST_F(GeneralPage, EachControlChangesItsOwnKeysAndTogetherTheyChangeAll)
{
    box.Write(file, "int Drw_settings_AllowDistortions = 1\n");
    Open();
    std::set<std::string> driven;
    const auto drive = [&](const Row& row, auto&& act) {
        SCOPED_TRACE(row.control);
        const auto before = All();
        act();
        std::set<std::string> changed;
        for (const auto& [key, value] : All()) {
            const auto was = before.find(key);
            if (was == before.end() || was->second != value) changed.insert(key);
        }
        EXPECT_EQ(changed, row.keys);
        driven.insert(changed.begin(), changed.end());
    };
    for (const Row& row : kSpinners)
        drive(row, [&] { EXPECT_TRUE(KivUserHand::Type(Spinner(row.control), "7")); });
    for (const Row& row : kColours)
        drive(row, [&] { EXPECT_TRUE(KivUserHand::ChooseColour(Colour(row.control), 1, 2, 3)); });
    for (const Row& row : kChecks) drive(row, [&] { EXPECT_TRUE(KivUserHand::Tick(Check(row.control))); });
    EXPECT_EQ(driven.size(), 24U);
    EXPECT_TRUE(session->Commit().empty());
    const auto saved = All();
    KivSettingRepository::ForgetAll();
    EXPECT_EQ(All(), saved);
}

TEST_F(GeneralPage, TwentyMillimetresAreTwentyInEveryUnit)
{
    for (const char* unit : {"MM", "INCH", "F_I_F64", "F_I_DEC", "FOOT", "KM"}) {
        KivParmEngine::Instance().SetCurrentUnit(KivParmDictionary::LengthType, unit);
        std::filesystem::remove(file);
        Open();
        for (const char* typed : {"10 cm", "20 mm"})
            ASSERT_TRUE(KivUserHand::Type(Spinner("editorGridSpacing"), typed)) << unit;
        EXPECT_EQ(Stored("Drw_settings_GridPrimarySpacing", 0.0), 20.0) << unit;
        EXPECT_TRUE(session->Commit().empty());
        Open();
        EXPECT_EQ(Spinner("editorGridSpacing").GetValue(), 0.02) << unit;
        // Looking at a rounded text and committing it changes nothing.
        KivDlgSpinner& spinner = Spinner("editorGridSpacing");
        EXPECT_TRUE(KivUserHand::Type(spinner, spinner.Print(spinner.GetValue())));
        EXPECT_EQ(Stored("Drw_settings_GridPrimarySpacing", 0.0), 20.0) << unit;
    }
}

TEST_F(GeneralPage, VerticalFieldsFollowUntilDistortionsAreAllowed)
{
    Open();
    EXPECT_FALSE(Spinner("editorGridSpacingV").IsEnabled());
    EXPECT_FALSE(KivUserHand::Type(Spinner("editorGridSpacingV"), "5"));
    EXPECT_FALSE(Spinner("editorGridSpacingV").WhyDisabled().IsEmpty());
    EXPECT_TRUE(KivUserHand::Type(Spinner("editorGridSpacing"), "20"));
    EXPECT_TRUE(KivUserHand::Type(Spinner("editorGridGraduation"), "2.7"));
    EXPECT_EQ(Spinner("editorGridSpacingV").GetValue(), 0.02);
    EXPECT_EQ(Stored("Drw_settings_GridVPrimarySpacing", 0.0), 20.0);
    EXPECT_EQ(Stored("Drw_settings_GridSecondaryStep", 0), 2);
    EXPECT_EQ(Spinner("editorGridGraduation").GetValue(), 2.0);
    EXPECT_EQ(Spinner("editorGridGraduationV").GetValue(), 2.0);

    EXPECT_TRUE(KivUserHand::Tick(Check("checkAllowDistortions")));
    EXPECT_TRUE(Spinner("editorGridSpacingV").IsEnabled() && Spinner("editorGridGraduationV").IsEnabled());
    EXPECT_TRUE(KivUserHand::Type(Spinner("editorGridSpacing"), "30"));
    EXPECT_EQ(Stored("Drw_settings_GridVPrimarySpacing", 0.0), 20.0);
    EXPECT_TRUE(KivUserHand::Turn(Spinner("editorGridGraduation"), 1));
    EXPECT_EQ(Stored("Drw_settings_GridSecondaryStep", 0), 3);
}

TEST_F(GeneralPage, LocksHoldWhateverThePageAsks)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"),
              "lock double Drw_settings_GridVPrimarySpacing = 5\nlock float BackgroundColorRed = 1\n");
    Open();
    EXPECT_TRUE(KivUserHand::Tick(Check("checkAllowDistortions")));
    EXPECT_FALSE(Spinner("editorGridSpacingV").IsEnabled());
    EXPECT_TRUE(Spinner("editorGridGraduationV").IsEnabled());
    const KivHandAnswer answer = KivUserHand::ChooseColour(Colour("comboBackgroundColor"), 0, 0, 0);
    EXPECT_FALSE(answer);
    EXPECT_NE(std::string(answer.why.View()).find("site"), std::string::npos) << answer.why.View();
    EXPECT_TRUE(Colour("comboBackgroundColorDD").IsEnabled());

    // Mirrored into a locked field the spacing is neither stored nor shown.
    EXPECT_TRUE(KivUserHand::Tick(Check("checkAllowDistortions")));
    EXPECT_TRUE(KivUserHand::Type(Spinner("editorGridSpacing"), "20"));
    EXPECT_EQ(Spinner("editorGridSpacingV").GetValue(), 0.005);

    box.Write(box.File("site"), "lock float BackgroundColorGreen = 1\n");
    Open();
    EXPECT_TRUE(Colour("comboBackgroundColor").IsEnabled()) << "only the red key's lock counts";
}

TEST_F(GeneralPage, BackgroundsAreStoredAsFractionsAndReadBackCut)
{
    Open();
    EXPECT_TRUE(KivUserHand::ChooseColour(Colour("comboBackgroundColor"), 128, 128, 128));
    EXPECT_EQ(Stored("BackgroundColorBlue", 0.0F), static_cast<float>(128 / 255.0));
    EXPECT_TRUE(session->Commit().empty());
    Open();
    unsigned int r = 1, g = 1, b = 1;
    Colour("comboBackgroundColor").GetSelectedColor(&r, &g, &b);
    EXPECT_EQ(r + g + b, 0U);
    EXPECT_TRUE(KivUserHand::ChooseColour(Colour("comboBackgroundColor"), 255, 255, 255));
    EXPECT_TRUE(session->Commit().empty());
    Open();
    Colour("comboBackgroundColor").GetSelectedColor(&r, &g, &b);
    EXPECT_EQ(r & g & b, 255U);
}

TEST_F(GeneralPage, CancelAndResetBringFileAndScreenBack)
{
    box.Write(file, "# mine\r\nint Ruler = 1\r\ndouble RotSnapAngle = 30\r\n");
    box.NameLayers({"site"});
    box.Write(box.File("site"), "double RotSnapAngle = 45\n");
    Open();
    const std::string bytes = box.Bytes(file);
    const auto before = All();
    EXPECT_TRUE(KivUserHand::Tick(Check("checkRuler")));
    EXPECT_TRUE(KivUserHand::Turn(Spinner("spinnerRotSnapAngle"), 3));
    session->Cancel();
    EXPECT_EQ(All(), before);
    EXPECT_EQ(box.Bytes(file), bytes);
    EXPECT_EQ(Check("checkRuler").GetState(), KivDlgChecked);

    session->Reset(session->Pages()[0]);
    EXPECT_EQ(Stored("RotSnapAngle", 0.0), 45.0);
    EXPECT_EQ(Check("checkRuler").GetState(), KivDlgUnchecked);
    EXPECT_EQ(Spinner("spinnerRotSnapAngle").Print(Spinner("spinnerRotSnapAngle").GetValue()), "45°");
    session->Cancel();
    EXPECT_EQ(All(), before);
    EXPECT_EQ(box.Bytes(file), bytes);
}

TEST_F(GeneralPage, ARefusedSaveIsSaidAndLosesNothing)
{
    Open();
    EXPECT_TRUE(KivUserHand::Tick(Check("checkRuler")));
    std::filesystem::remove_all(box.root / "user");
    box.Write(box.root / "user", "a file where the directory was");
    const auto errors = session->Commit();
    ASSERT_FALSE(errors.empty());
    EXPECT_EQ(Stored("Ruler", 0), 1);
    std::filesystem::remove(box.root / "user");
    EXPECT_TRUE(session->Commit().empty());
    EXPECT_NE(box.Bytes(file).find("int Ruler = 1"), std::string::npos);
}

TEST_F(GeneralPage, WorksOnDefaultsWithoutAnyRepository)
{
    KivSettingRepository::Withhold(true);
    Open();
    EXPECT_EQ(Check("checkGrid").GetState(), KivDlgChecked);
    EXPECT_TRUE(KivUserHand::Tick(Check("checkGrid")));
    EXPECT_TRUE(session->Commit().empty());
    session->Reset(session->Pages()[0]);
    session->Cancel();
    EXPECT_EQ(Spinner("editorGridSpacing").GetValue(), 0.1);
}

TEST_F(GeneralPage, StoredNonsenseIsShownAndBorne)
{
    for (const char* value : {"-1e300", "1e300", "-0.0", "1e-300"}) {
        std::string content;
        for (const char* key : {"Drw_settings_GridPrimarySpacing", "Drw_settings_GridVPrimarySpacing",
                                "ViewAxisSize", "RotSnapAngle"})
            content += std::string("double ") + key + " = " + value + "\n";
        for (const char* key : {"Drw_settings_GridSecondaryStep", "Drw_settings_GridVSecondaryStep"})
            content += std::string("int ") + key + " = -2147483648\n";
        box.Write(file, content + "float BackgroundColorRed = 1e38\n");
        Open();
        for (const Row& row : kSpinners) {
            KivDlgSpinner& spinner = Spinner(row.control);
            EXPECT_FALSE(spinner.Print(spinner.GetValue()).IsEmpty());
            KivUserHand::Turn(spinner, 1);
        }
    }
}

// Enabled = what the page asks AND not locked, under any walk of a user and any set of locks.
TEST_F(GeneralPage, NoWalkOpensALock)
{
    std::mt19937 random(20240607);
    const auto coin = [&] { return random() % 2 == 0; };
    for (int walk = 0; walk < 40; ++walk) {
        std::set<std::string> locked;
        std::string layer;
        const auto lockSome = [&](const auto& rows, const char* type) {
            for (const Row& row : rows) {
                if (!coin()) continue;
                const bool count = std::string_view(row.control).find("Graduation") != std::string_view::npos;
                const std::string key = row.keys.count("BackgroundColorRed") ? "BackgroundColorRed"
                                        : row.keys.count("BackgroundColorRedDitto")
                                            ? "BackgroundColorRedDitto"
                                            : *row.keys.begin();
                layer += std::string("lock ") + (count ? "int" : type) + " " + key + " = 1\n";
                locked.insert(row.control);
            }
        };
        lockSome(kChecks, "int");
        lockSome(kSpinners, "double");
        lockSome(kColours, "float");
        box.NameLayers({"site"});
        box.Write(box.File("site"), layer);
        Open();
        const auto enforced = All();
        for (int step = 0; step < 60; ++step) {
            if (random() % 10 == 0) session->Reset(session->Pages()[0]);
            if (random() % 10 == 0) session->Cancel();
            KivUserHand::Tick(Check(kChecks[random() % std::size(kChecks)].control));
            KivUserHand::Turn(Spinner(kSpinners[random() % std::size(kSpinners)].control), coin() ? 1 : -1);
            KivUserHand::ChooseColour(Colour(kColours[random() % 2].control), random() % 256, 0, 0);
            const bool distortions = Check("checkAllowDistortions").GetState() == KivDlgChecked;
            const auto expect = [&](const std::string& control, bool asked) {
                const KivDialog& node = Node<KivDialog>(control + "_dialog");
                ASSERT_EQ(node.IsEnabled(), asked && !locked.count(control)) << control;
                ASSERT_EQ(node.WhyDisabled().IsEmpty(), node.IsEnabled()) << control;
            };
            for (const Row& row : kChecks) expect(row.control, true);
            for (const Row& row : kColours) expect(row.control, true);
            for (const Row& row : kSpinners)
                expect(row.control, std::string_view(row.control).back() != 'V' || distortions);
        }
        const auto after = All();
        for (const auto& [key, value] : enforced) EXPECT_EQ(after.at(key), value) << key << " was locked";
    }
}

// Titles, helps and labels of a whole page.
TEST_F(GeneralPage, EveryControlIsNamedAndNoTextIsLeftOver)
{
    Open();
    std::set<std::string> asked;
    std::map<char, std::string> letters;
    const auto visit = [&](auto&& self, const KivDialog& node) -> void {
        const std::string own(static_cast<const KivDialog&>(node).KivCommand::GetName().View());
        for (const char* kind : {"Title", "Help", "ShortHelp", "LongHelp", "Unavailable"}) {
            if (!node.CatalogueText(kind).IsEmpty()) asked.insert(own + "." + kind);
        }
        if (node.IsAKindOf("KivDlgControl") && node.GetVisibility() == KivDlgShown) {
            EXPECT_NE(node.GetSpokenTitle(), own.c_str()) << "no accessible name";
            EXPECT_NE(std::string(node.GetTitle().View()).find_first_not_of('_'), std::string::npos);
            EXPECT_NE(node.GetTitle().View().find("_dialog"), 0U);
            EXPECT_FALSE(node.GetHelp().IsEmpty()) << own;
            EXPECT_FALSE(node.GetLongHelp().IsEmpty()) << own;
        }
        if (node.IsAKindOf("KivDlgCheckButton") || node.IsAKindOf("KivDlgLabel")) {
            if (node.GetVisibility() == KivDlgShown) {
                const std::string title(node.GetTitle().View());
                const std::size_t mark = title.find('&');
                ASSERT_NE(mark, std::string::npos) << own << " has no letter";
                const char letter = static_cast<char>(std::tolower(title[mark + 1]));
                EXPECT_EQ(letters.count(letter), 0U) << own << " and " << letters[letter];
                letters[letter] = own;
            }
        }
        if (node.IsAKindOf("KivDlgLabel")) {
            EXPECT_NE(static_cast<const KivDlgLabel&>(node).GetLabelledControl(), nullptr) << own;
        }
        if (node.IsAKindOf("KivDlgToolsOptionsFrame")) {
            EXPECT_NE(node.GetTitle(), own.c_str());
            const KivUnicodeString icon(node.GetIconName());
            EXPECT_TRUE(icon.IsEmpty() || !KivTextCatalogue::FindResource("icons/" + icon + ".svg").IsEmpty())
                << icon.View();
        }
        for (const KivDialog* child : node.Children()) self(self, *child);
    };
    visit(visit, session->Root());
    for (const auto& [key, text] : KivTextCatalogue::Open("Kiv2DBaseOptGalFrm").Texts())
        EXPECT_EQ(asked.count(key), 1U) << key << " is a text of nobody";
}

} // namespace
