#include "Base/KivTextCatalogue.h"
#include "Dialog/KivDlgLabel.h"
#include "KivDrwKinds.h"
#include "OptionsPages.h"
#include "PageTables.h"
#include "Parameter/KivControlUnit.h"

#include <algorithm>
#include <random>
#include <set>
#include <sstream>

namespace {

using Kinds = std::map<std::string, const KivSettingKind&>;

// The kind in each row of the catalogue.
const Kinds& CatalogueKinds()
{
    static const Kinds kinds = {
#define KIV_SETTING(group, type, key, function, value, kind) {#key, KivDrwKinds::kind},
#include "KivDrwSettings.def"
    };
    return kinds;
}

// What holds for every page alike.
class PageFamily : public OptionsPages, public testing::WithParamInterface<PageTable> {
protected:
    void SetUp() override
    {
        box.SetVariable("KivCollectionStandard", box.root.string());
        for (const char* style : {"Blue.xml", "Green.XML", "Red.xml"})
            box.Write(box.root / "generativeparameters" / style, "");
    }
    void OpenWith(const std::string& more = {}, const std::vector<const char*>& instead = {})
    {
        std::string content = more;
        for (const char* line : table.enabling) content += std::string(line) + "\n";
        for (const char* line : instead) content += std::string(line) + "\n"; // the last one counts
        box.Write(file, content);
        OpenAll();
    }
    // With the windows of the page.
    void OpenAll()
    {
        Open();
        ASSERT_NE(session->FindPage(table.page), nullptr);
        for (const char* button : table.buttons) ASSERT_TRUE(Press(button));
    }
    static std::set<std::string> Changed(const Values& before, const Values& after)
    {
        std::set<std::string> changed;
        for (const auto& [key, value] : after) {
            const auto was = before.find(key);
            if (was == before.end() || was->second != value) changed.insert(key);
        }
        return changed;
    }
    std::string Shown()
    {
        std::string shown;
        for (const TableRow& row : table.rows)
            shown += std::string(Control(row.control).GetShownValue().View()) + "\n";
        return shown;
    }
    void DriveAll()
    {
        for (const TableRow& row : table.rows) Drive(Control(row.control));
    }
    std::set<std::string> Keys() const
    {
        std::set<std::string> keys;
        const auto add = [&](const std::vector<TableRow>& rows) {
            for (const TableRow& row : rows) keys.insert(row.keys.begin(), row.keys.end());
        };
        add(table.rows);
        for (const WindowTable& window : table.windows) add(window.rows);
        return keys;
    }
    // Whether the page, not minding locks, has the control of a row enabled.
    bool IsAsked(const TableRow& row)
    {
        if (row.enabledBy == kByItsPage) return true;
        std::istringstream names{std::string(row.enabledBy)};
        bool none = true;
        for (std::string name; std::getline(names, name, '|'); none = false) {
            const auto its = std::find_if(table.rows.begin(), table.rows.end(),
                                          [&](const TableRow& other) { return other.control == name; });
            if (IsChecked(name) && IsAsked(*its)) return true;
        }
        return none;
    }
    // How many things a control offers to be driven to: each line of a list, else the two ends of a range;
    // the other buttons of a choice are rows of their own.
    static int Offers(const KivDialog& control)
    {
        const bool isList = control.IsAKindOf(KivDlgCombo::Name) && !control.IsAKindOf(KivComboColor::Name);
        return isList ? static_cast<const KivDlgCombo&>(control).GetLineCount() : 2;
    }
    static KivHandAnswer DriveTo(int which, KivDialog& control)
    {
        const auto is = [&](const char* kind) { return control.IsAKindOf(kind); };
        const unsigned int component = which ? 255 : 0;
        if (is(KivComboColor::Name))
            return KivUserHand::ChooseColor(static_cast<KivComboColor&>(control), component, component,
                                            component);
        if (is(KivDlgCombo::Name)) return KivUserHand::Choose(static_cast<KivDlgCombo&>(control), which);
        if (!is(KivDlgSpinner::Name)) return Drive(control);
        auto& spinner = static_cast<KivDlgSpinner&>(control);
        double least = 0.0, greatest = 0.0, step = 0.0;
        spinner.GetMinMaxStep(least, greatest, step);
        return KivUserHand::Type(spinner, spinner.Print(which ? greatest : least));
    }
    // The value in force of a key of the page, as a number; a text is none.
    static double Number(const std::string& key)
    {
        KivSettingValue value;
        Repository().ReadSetting(key.c_str(), &value, 1);
        return std::visit(
            [](const auto& plain) {
                if constexpr (std::is_arithmetic_v<std::decay_t<decltype(plain)>>)
                    return static_cast<double>(plain);
                else
                    return 0.0;
            },
            value);
    }
    // What stands for a choice: the line of a list, or the row's own button.
    static int Chosen(const TableRow& row, const KivSettingKind& kind, int line)
    {
        const auto choices = kind.Choices();
        if (kind.catalogue) return choices[static_cast<std::size_t>(line)].value;
        const auto its = std::find_if(choices.begin(), choices.end(), [&](const KivSettingChoice& choice) {
            return std::string_view(choice.name) == row.control;
        });
        return its == choices.end() ? -1 : its->value;
    }
    // What can be seen of a control's kind without driving it.
    void Compare(const TableRow& row, const KivSettingKind& kind)
    {
        for (const std::string& key : row.keys) EXPECT_EQ(&CatalogueKinds().at(key), &kind) << key;
        using Color = KivSettingKind::Color;
        KivDialog& control = Control(row.control);
        const auto is = [&](const char* name) { return control.IsAKindOf(name); };
        EXPECT_EQ(is(KivDlgCheckButton::Name),
                  std::string_view(kind.name).starts_with("switch") && kind.Choices().empty());
        EXPECT_EQ(is(KivComboColor::Name), kind.color != Color::None);
        EXPECT_EQ(row.keys.size(), kind.color == Color::Component ? 3U : 1U);
        EXPECT_EQ(is(KivDlgSpinner::Name), kind.step != 0.0);
        if (is(KivDlgSpinner::Name)) {
            const auto& spinner = static_cast<const KivDlgSpinner&>(control);
            double least = 0.0, greatest = 0.0, step = 0.0;
            spinner.GetMinMaxStep(least, greatest, step);
            EXPECT_EQ(least, kind.minimum * kind.shownPerStored);
            EXPECT_EQ(greatest, kind.maximum * kind.shownPerStored);
            EXPECT_EQ(step, kind.step * kind.shownPerStored);
            EXPECT_EQ(KivControlUnit::Of(spinner.GetUnit()).magnitude, kind.magnitude);
            EXPECT_EQ(spinner.GetPrecision(), kind.decimals);
        }
        if (!kind.catalogue) return;
        ASSERT_TRUE(is(KivDlgCombo::Name));
        const auto& combo = static_cast<const KivDlgCombo&>(control);
        ASSERT_EQ(combo.GetLineCount(), static_cast<int>(kind.Choices().size()));
        int line = 0;
        for (const KivSettingChoice& choice : kind.Choices()) {
            KivUnicodeString text;
            combo.GetLine(text, line++);
            EXPECT_EQ(text, KivTextCatalogue::Open(kind.catalogue).Find(choice.name));
        }
    }
    KivDlgDialog& OpenWindow(const WindowTable& window)
    {
        OpenWith({}, window.enabling);
        EXPECT_TRUE(Press(window.button));
        return Node<KivDlgDialog>(window.name);
    }
    const PageTable& table = GetParam();
};

TEST_P(PageFamily, EachControlChangesItsOwnKeysAndTogetherTheyChangeAll)
{
    OpenWith();
    Repository().Commit(0);
    std::set<std::string> driven;
    for (const TableRow& row : table.rows) {
        SCOPED_TRACE(row.control);
        const Values before = All();
        const KivHandAnswer answer = Drive(Control(row.control));
        EXPECT_TRUE(answer) << answer.why.View();
        const std::set<std::string> changed = Changed(before, All());
        const std::set<std::string> own(row.keys.begin(), row.keys.end());
        // A button of a choice that is chosen already changes nothing.
        if (!(changed.empty() && Control(row.control).IsAKindOf(KivDlgRadioButton::Name))) {
            EXPECT_EQ(changed, own);
        }
        driven.insert(changed.begin(), changed.end());
    }
    EXPECT_TRUE(session->Commit().empty());
    const Values saved = All();
    KivSettingRepository::ForgetAll();
    EXPECT_EQ(All(), saved);

    // A window writes all it shows when it is closed: it has to be closed once for all of it to be there.
    for (const WindowTable& window : table.windows) {
        KivUserHand::Close(OpenWindow(window));
        KivCommand::DrainDelayedDestruction();
        for (const TableRow& row : window.rows) {
            SCOPED_TRACE(row.control);
            EXPECT_TRUE(Press(window.button));
            const Values before = All();
            const KivHandAnswer answer = Drive(Control(row.control));
            EXPECT_TRUE(answer) << answer.why.View();
            EXPECT_EQ(All(), before) << "not before it is closed";
            KivUserHand::CloseWindow(Node<KivDlgDialog>(window.name));
            KivCommand::DrainDelayedDestruction();
            const std::set<std::string> changed = Changed(before, All());
            const std::set<std::string> own(row.keys.begin(), row.keys.end());
            if (!changed.empty()) {
                EXPECT_EQ(changed, own);
            }
            driven.insert(changed.begin(), changed.end());
        }
    }
    EXPECT_EQ(driven, Keys());
}

// Unit, factors, range and choices of every control are those of its key's kind.
TEST_P(PageFamily, EveryControlIsOfTheKindOfItsKey)
{
    std::map<std::string, std::set<double>> stored;
    const auto see = [&](const TableRow& row) {
        for (const std::string& key : row.keys) stored[key].insert(Number(key));
    };
    OpenWith();
    for (const TableRow& row : table.rows) {
        SCOPED_TRACE(row.control);
        const KivSettingKind& kind = CatalogueKinds().at(row.keys.front());
        if (!Control(row.control).IsEnabled()) OpenWith();
        KivDialog& control = Control(row.control);
        Compare(row, kind);
        for (int which = 0; which < Offers(control); ++which) {
            EXPECT_TRUE(DriveTo(which, control));
            see(row);
            if (control.IsAKindOf(KivDlgSpinner::Name)) {
                EXPECT_EQ(static_cast<KivDlgSpinner&>(control).GetValue(),
                          Number(row.keys.front()) * kind.shownPerStored);
            } else if (!kind.Choices().empty()) {
                EXPECT_EQ(Number(row.keys.front()), Chosen(row, kind, which));
            }
        }
        if (kind.magnitude != KivDlgMagnitudeLength) continue;
        auto& spinner = static_cast<KivDlgSpinner&>(control);
        EXPECT_TRUE(KivUserHand::Type(spinner, "2 m"));
        EXPECT_EQ(Number(row.keys.front()), 2.0 * kind.storedPerShown);
        EXPECT_EQ(kind.name,
                  std::string("length in ") + (kind.storedPerShown == 1.0 ? "meters" : "millimeters"));
    }
    for (const WindowTable& window : table.windows) {
        for (const TableRow& row : window.rows) {
            SCOPED_TRACE(row.control);
            const KivSettingKind& kind = CatalogueKinds().at(row.keys.front());
            for (int which = 0, count = 1; which < count; ++which) {
                KivDlgDialog& opened = OpenWindow(window);
                Compare(row, kind);
                count = Offers(Control(row.control));
                EXPECT_TRUE(DriveTo(which, Control(row.control)));
                KivUserHand::Close(opened);
                see(row);
                if (!kind.Choices().empty()) {
                    EXPECT_EQ(Number(row.keys.front()), Chosen(row, kind, which));
                }
            }
        }
    }
    for (const auto& [key, values] : stored) {
        const KivSettingKind& kind = CatalogueKinds().at(key);
        if (!kind.HasRange()) continue;
        EXPECT_NEAR(*values.begin(), kind.minimum, 1e-9) << key;
        // A switch on its page, but a first start stores a level of detail under it.
        const double greatest = key == "KivDrwQmtAnnotLay" ? 1.0 : kind.maximum;
        EXPECT_NEAR(*values.rbegin() / greatest, 1.0, 1e-9) << key;
    }
}

TEST_P(PageFamily, EveryLockDisablesItsControlsAndNothingElse)
{
    box.NameLayers({"site"});
    for (const std::string& key : Keys()) {
        SCOPED_TRACE(key);
        box.Write(box.File("site"), "lock " + key + "\n");
        OpenWith();
        const Values before = All();
        for (const TableRow& row : table.rows) {
            KivDialog& control = Control(row.control);
            const bool asked = IsAsked(row);
            EXPECT_EQ(control.IsEnabled(), asked && row.keys.front() != key) << row.control;
            EXPECT_EQ(control.WhyDisabled().IsEmpty(), control.IsEnabled()) << row.control;
            if (row.keys.front() == key) {
                EXPECT_FALSE(Drive(control)) << row.control;
            }
        }
        EXPECT_EQ(All(), before);
        for (const WindowTable& window : table.windows) {
            const auto has = [&](const TableRow& row) { return row.keys.front() == key; };
            if (std::none_of(window.rows.begin(), window.rows.end(), has)) continue;
            OpenWindow(window);
            for (const TableRow& row : window.rows) {
                KivDialog& control = Control(row.control);
                // A locked quality fixes the resolution beside it.
                if (!has(row) && row.keys.front().find("Picture") != std::string::npos) continue;
                EXPECT_EQ(control.IsEnabled(), !has(row)) << row.control;
                EXPECT_EQ(static_cast<bool>(Drive(control)), !has(row)) << row.control;
            }
        }
    }
}

// Enabled = what the page asks AND not locked, under any walk of a user and any set of locks.
TEST_P(PageFamily, NoWalkOpensALock)
{
    std::mt19937 random(20240607);
    const auto coin = [&] { return random() % 2 == 0; };
    box.NameLayers({"site"});
    for (int walk = 0; walk < 20; ++walk) {
        std::set<std::string> locked;
        std::string layer = "int Nobody = 0\n"; // an empty file would not be believed, and the last one hold
        for (const TableRow& row : table.rows) {
            if (!coin() || !locked.insert(row.keys.front()).second) continue;
            layer += "lock " + row.keys.front() + "\n";
        }
        box.Write(box.File("site"), layer);
        OpenWith();
        const Values enforced = All();
        for (int step = 0; step < 60; ++step) {
            if (random() % 10 == 0) session->Reset(Page(table.page));
            if (random() % 10 == 0) {
                session->Cancel();
                KivCommand::DrainDelayedDestruction();
                for (const char* button : table.buttons) ASSERT_TRUE(Press(button));
            }
            if (random() % 10 == 0) session->Refill();
            Drive(Control(table.rows[random() % table.rows.size()].control));
            for (const TableRow& row : table.rows) {
                const KivDialog& control = Control(row.control);
                const bool isLocked = locked.count(row.keys.front()) > 0;
                if (row.enabledBy == kByItsPage) {
                    ASSERT_FALSE(isLocked && control.IsEnabled()) << row.control;
                } else {
                    const bool asked = IsAsked(row);
                    ASSERT_EQ(control.IsEnabled(), asked && !isLocked) << row.control;
                }
                ASSERT_EQ(control.WhyDisabled().IsEmpty(), control.IsEnabled()) << row.control;
            }
        }
        const Values after = All();
        for (const std::string& key : locked) {
            const auto was = enforced.find(key);
            const auto is = after.find(key);
            ASSERT_EQ(was == enforced.end(), is == after.end()) << key;
            if (is != after.end()) {
                EXPECT_EQ(is->second, was->second) << key << " was locked";
            }
        }
    }
}

TEST_P(PageFamily, OkCancelAndResetMeanWhatTheySay)
{
    // And a key of another page.
    const std::string other = std::string(table.page) == "General" ? "ManipZoom" : "Ruler";
    OpenWith("# mine\r\nint " + other + " = 1\n");
    const std::string bytes = box.Bytes(file);
    const Values before = All();
    const std::string asOpened = Shown();
    DriveAll();
    EXPECT_NE(All(), before);
    EXPECT_NE(Shown(), asOpened);
    EXPECT_EQ(box.Bytes(file), bytes) << "nothing is saved before OK";
    session->Cancel();
    KivCommand::DrainDelayedDestruction();
    EXPECT_EQ(All(), before);
    EXPECT_EQ(box.Bytes(file), bytes);

    for (const char* button : table.buttons) ASSERT_TRUE(Press(button));
    EXPECT_EQ(Shown(), asOpened);
    DriveAll();
    const Values driven = All();
    EXPECT_TRUE(session->Commit().empty());
    EXPECT_NE(box.Bytes(file), bytes);
    OpenAll();
    EXPECT_EQ(All(), driven);

    session->Reset(Page(table.page));
    const std::string reset = Shown();
    session->Refill();
    EXPECT_EQ(Shown(), reset);
    for (const std::string& key : Keys()) EXPECT_EQ(All().count(key), 0U) << key << " is still the user's";
    EXPECT_EQ(All().at(other), "1");
    session->Cancel();
    KivCommand::DrainDelayedDestruction();
    EXPECT_EQ(All(), driven);
}

TEST_P(PageFamily, WorksOnDefaultsWithoutAnyRepository)
{
    OpenAll();
    const std::string defaults = Shown();
    KivSettingRepository::Withhold(true);
    OpenAll();
    EXPECT_EQ(Shown(), defaults);
    for (const TableRow& row : table.rows) Drive(Control(row.control));
    session->Reset(Page(table.page));
    EXPECT_TRUE(session->Commit().empty());
    session->Cancel();
}

// Titles, helps, labels and icons of a whole page and its windows.
TEST_P(PageFamily, EveryControlIsNamedAndNoTextIsLeftOver)
{
    OpenWith();
    std::set<std::string> asked;
    // Of a page, or of a window of it, each of which has the keyboard to itself.
    struct Letters {
        std::map<char, std::string> taken;
        std::set<std::string> without;
        std::set<KivUnicodeString> padlocks;
    };
    const auto takeLetter = [](const KivDialog& node, const std::string& own, Letters& letters) {
        const std::string title(node.GetTitle().View());
        const std::size_t mark = title.find('&');
        if (mark == std::string::npos && node.IsAKindOf("KivDlgCheckButton")) {
            letters.without.insert(own);
            return;
        }
        ASSERT_NE(mark, std::string::npos) << own << " has no letter";
        const char letter = static_cast<char>(std::tolower(title[mark + 1]));
        EXPECT_EQ(letters.taken.count(letter), 0U) << own << " and " << letters.taken[letter];
        letters.taken[letter] = own;
    };
    const auto visit = [&](auto&& self, const KivDialog& node, Letters& around) -> void {
        // A window's keyboard reaches nothing in the page that opened it.
        Letters ofWindow;
        Letters& letters = node.IsAKindOf("KivDlgDialog") ? ofWindow : around;
        const std::string own(node.KivCommand::GetName().View());
        for (const char* kind : {"Title", "Spoken", "Help", "ShortHelp", "LongHelp", "Unavailable"}) {
            if (!node.CatalogueText(kind).IsEmpty()) asked.insert(own + "." + kind);
        }
        const bool shown = node.GetVisibility() == KivDlgShown;
        const auto is = [&](const char* kind) { return shown && node.IsAKindOf(kind); };
        if (is("KivDlgControl")) {
            EXPECT_NE(node.GetSpokenTitle(), own.c_str()) << "no accessible name";
            EXPECT_FALSE(node.GetSpokenTitle().IsEmpty()) << own;
            EXPECT_NE(node.GetTitle().View().find("_dialog"), 0U);
            EXPECT_FALSE(node.GetHelp().IsEmpty()) << own;
            EXPECT_FALSE(node.GetLongHelp().IsEmpty()) << own;
            for (const KivUnicodeString& help : {node.GetHelp(), node.GetLongHelp()})
                EXPECT_EQ(help.View().find('%'), std::string_view::npos)
                    << own << ": a range that nobody filled in";
        }
        if (is("KivDlgLabel")) {
            if (static_cast<const KivDlgLabel&>(node).GetLabeledControl()) takeLetter(node, own, letters);
            EXPECT_TRUE(node.GetTitle() != own.c_str()) << own << " has no text";
        }
        const bool isNamedByItself =
            is("KivDlgCheckButton") || is("KivDlgRadioButton") || is("KivDlgPushButton");
        if (isNamedByItself && !node.GetTitle().IsEmpty()) takeLetter(node, own, letters);
        if (is("KivDlgLock")) {
            const KivUnicodeString padlock = node.GetSpokenName();
            EXPECT_TRUE(letters.padlocks.insert(padlock).second) << "which setting's is " << padlock.View();
        }
        if (is("KivDlgDialog")) {
            EXPECT_NE(node.GetTitle(), own.c_str()) << "no title";
        }
        if (is("KivDlgToolsOptionsFrame")) {
            EXPECT_NE(node.GetTitle(), own.c_str());
        }
        const KivUnicodeString icon(node.GetIconName());
        if (shown) {
            EXPECT_TRUE(icon.IsEmpty() || !KivTextCatalogue::FindResource("icons/" + icon + ".svg").IsEmpty())
                << icon.View();
        }
        for (const KivDialog* child : node.Children()) self(self, *child, letters);
    };
    Letters ofPage;
    const KivTextCatalogue& desktop = KivTextCatalogue::Open("KivDesktop");
    for (const char* button : {"OK", "Cancel", "Reset"}) {
        const std::string title(desktop.Text(button).View());
        ASSERT_NE(title.find('&'), std::string::npos) << button;
        ofPage.taken[static_cast<char>(std::tolower(title[title.find('&') + 1]))] = button;
    }
    EXPECT_EQ(ofPage.taken.size(), 3U);
    visit(visit, *Page(table.page).frame, ofPage);
    // A long page has more to name than the alphabet has letters that occur: some of its switches do without.
    if (ofPage.taken.size() + ofPage.without.size() <= 23) {
        EXPECT_EQ(ofPage.without, std::set<std::string>());
    }
    EXPECT_LE(ofPage.without.size(), 11U);
    std::set<std::string> catalogues{table.catalogue};
    for (const WindowTable& window : table.windows) {
        Letters none;
        visit(visit, OpenWindow(window), none);
        catalogues.insert(window.catalogue);
    }
    for (const std::string& catalogue : catalogues) {
        // Titles of windows, lines of combos and captions are keys of their own.
        for (const auto& [key, text] : KivTextCatalogue::Open(catalogue.c_str()).Texts()) {
            EXPECT_EQ(asked.count(key), key.find('.') == std::string::npos ? 0U : 1U)
                << key << " is a text of nobody";
        }
    }
    EXPECT_FALSE(Page(table.page).icon.IsEmpty());
    EXPECT_FALSE(Page(table.page).help.IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Pages, PageFamily, testing::ValuesIn(PageTables()),
                         [](const auto& table) { return std::string(table.param.page); });

} // namespace
