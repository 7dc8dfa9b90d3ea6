#include "Host/OptionsPages.h"
#include "Host/PageTables.h"
#include "KivDrwValueKind.h"

namespace {

// The tool takes what the pages offer, and names it alike.
class PageRanges : public OptionsPages {
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
        if (is(KivDlgCheckButton::Name)) return KivUserHand::Tick(static_cast<KivDlgCheckButton&>(control));
        if (is(KivDlgRadioButton::Name)) return KivUserHand::Choose(static_cast<KivDlgRadioButton&>(control));
        if (is(KivComboColor::Name))
            return KivUserHand::ChooseColor(static_cast<KivComboColor&>(control), component, component,
                                            component);
        if (is(KivDlgCombo::Name)) return KivUserHand::Choose(static_cast<KivDlgCombo&>(control), which);
        auto& spinner = static_cast<KivDlgSpinner&>(control);
        double least = 0.0, greatest = 0.0, step = 0.0;
        spinner.GetMinMaxStep(least, greatest, step);
        return KivUserHand::Type(spinner, spinner.Print(which ? greatest : least));
    }
    // The value in force of a key, as a number.
    static double Number(const KivDrwRow& row)
    {
        KivDrwValue value = row.makeDefault();
        return std::visit(
            [&](auto& plain) {
                Repository().ReadSetting(row.key, &plain, 1);
                if constexpr (std::is_same_v<std::decay_t<decltype(plain)>, KivUnicodeString>)
                    return 0.0;
                else
                    return static_cast<double>(plain);
            },
            value);
    }
    void See(const TableRow& row)
    {
        for (const std::string& key : row.keys) seen[key].insert(Number(*KivDrwCatalogue::Find(key)));
    }
    void OpenWith(const PageTable& table, const std::vector<const char*>& instead,
                  const std::vector<const char*>& buttons)
    {
        std::string content;
        for (const char* line : table.enabling) content += std::string(line) + "\n";
        for (const char* line : instead) content += std::string(line) + "\n"; // the last one counts
        OpenOn(content);
        for (const char* button : buttons) ASSERT_TRUE(Press(button));
    }

    std::map<std::string, std::set<double>> seen;
};

TEST_F(PageRanges, AreThoseOfTheTool)
{
    for (const PageTable& table : PageTables()) {
        OpenWith(table, {}, table.buttons);
        for (const TableRow& row : table.rows) {
            const KivDrwRow& setting = *KivDrwCatalogue::Find(row.keys.front());
            const KivDrwValueKind& kind = KivDrwCatalogue::KindOf(setting);
            if (!kind.HasRange()) continue;
            if (!Control(row.control).IsEnabled()) OpenWith(table, {}, table.buttons);
            KivDialog& control = Control(row.control);
            for (int which = 0; which < Offers(control); ++which) {
                EXPECT_TRUE(DriveTo(which, control)) << row.control;
                See(row);
            }
            const std::string_view name = kind.name;
            if (!name.starts_with("length")) continue;
            ASSERT_TRUE(control.IsAKindOf(KivDlgSpinner::Name)) << row.control;
            EXPECT_TRUE(KivUserHand::Type(static_cast<KivDlgSpinner&>(control), "2 m")) << row.control;
            EXPECT_EQ(Number(setting), name == "length in meters" ? 2.0 : 2000.0) << row.control;
        }
        for (const WindowTable& window : table.windows) {
            for (const TableRow& row : window.rows) {
                for (int which = 0, count = 1; which < count; ++which) {
                    OpenWith(table, window.enabling, {window.button});
                    count = Offers(Control(row.control));
                    EXPECT_TRUE(DriveTo(which, Control(row.control))) << row.control;
                    KivUserHand::Close(Node<KivDlgDialog>(window.name));
                    See(row);
                }
            }
        }
    }
    for (const KivDrwRow& row : KivDrwCatalogue::Rows()) {
        const KivDrwValueKind& kind = KivDrwCatalogue::KindOf(row);
        EXPECT_TRUE(kind.Holds(row.makeDefault())) << row.key;
        if (!row.onPage || !kind.HasRange()) continue;
        // A switch on its page, but a first start stores a level of detail under this one.
        const bool isSpecial = std::string_view(row.key) == "KivDrwQmtAnnotLay";
        EXPECT_NEAR(*seen[row.key].begin(), kind.minimum, 1e-9) << row.key;
        EXPECT_NEAR(*seen[row.key].rbegin() / kind.maximum, isSpecial ? 1.0 / 15.0 : 1.0, 1e-9) << row.key;
    }
    std::size_t page = 0;
    for (const KivDrwGroup group : KivDrwCatalogue::Groups())
        EXPECT_EQ(session->Pages()[page++].title, KivDrwCatalogue::NameOf(group));
}

} // namespace
