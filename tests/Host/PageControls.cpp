#include "Base/KivTextCatalogue.h"
#include "Dialog/KivDlgLabel.h"
#include "KivDrwKinds.h"
#include "PageFamily.h"
#include "Parameter/KivControlUnit.h"

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

// What can be seen of single controls.
class PageControls : public PageFamily {
protected:
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
};

// Unit, factors, range and choices of every control are those of its key's kind.
TEST_P(PageControls, EveryControlIsOfTheKindOfItsKey)
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

// Titles, helps, labels and icons of a whole page and its windows.
TEST_P(PageControls, EveryControlIsNamedAndNoTextIsLeftOver)
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
    visit(visit, *Page(table.page.c_str()).frame, ofPage);
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
    EXPECT_FALSE(Page(table.page.c_str()).icon.IsEmpty());
    EXPECT_FALSE(Page(table.page.c_str()).help.IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Pages, PageControls, testing::ValuesIn(PageTables()),
                         [](const auto& table) { return table.param.page; });

} // namespace
