#include "Dialog/KivDlgLabel.h"
#include "OptionsPages.h"

namespace {

// The special rules of the Layout, Geometry and Dimension pages.
class DrawingPages : public OptionsPages {
protected:
    void OpenOn(const std::string& content)
    {
        box.Write(file, content);
        Open();
    }
};

TEST_F(DrawingPages, ADirectoryThatDoesNotExistIsKeptAndMarked)
{
    KivDlgEditor& field = (OpenOn(""), Node<KivDlgEditor>("editorTitleBlockPath_dialog"));
    EXPECT_TRUE(field.IsDirectory());
    const KivUnicodeString usual = field.CatalogueText("Help");
    const std::string there = box.root.string(), away = there + "/away";
    box.Write(box.root / "file", "");
    for (const auto& [path, isMarked] : {std::pair(there, false),
                                         {away, true},
                                         {there + "/file", true},
                                         {std::string(), false},
                                         {away, true}}) {
        EXPECT_TRUE(KivUserHand::Type(field, path.c_str()));
        EXPECT_EQ(Stored("DrwFrameAndTitleBlockPath", KivUnicodeString("?")), path.c_str());
        EXPECT_EQ(field.GetText(), path.c_str());
        EXPECT_EQ(Node<KivDialog>("labelTitleBlockMissing").IsShown(), isMarked) << path;
        EXPECT_EQ(field.GetHelp() == usual, !isMarked) << "who hears the page is told too";
    }
    std::filesystem::create_directory(away);
    session->Refill();
    EXPECT_FALSE(Node<KivDialog>("labelTitleBlockMissing").IsShown()) << "it is back";
    EXPECT_TRUE(session->Commit().empty());
    EXPECT_EQ(box.Bytes(file).find("TitleBlockFile"), std::string::npos) << "on no page";
}

TEST_F(DrawingPages, MeasuresAreStoredInMillimetresAndDegrees)
{
    OpenOn("double LineUpOffsetLength = 12.5\ndouble LineUpOffsetAngle = 90\n");
    const struct {
        const char* row;
        const char* typed;
        const char* key;
        double stored;
    } measures[] = {{"spinnerDimLinePos", "0", "DimLinePosValue", 0.0},
                    {"spinnerDimLinePos", "-1", "DimLinePosValue", 0.0},
                    {"spinnerLineUpBaseLength", "1 in", "LineUpBaseOffsetLength", 25.4},
                    {"spinnerLineUpBaseAngle", "360", "LineUpBaseOffsetAngle", 360.0},
                    {"spinnerLineUpBaseAngle", "361", "LineUpBaseOffsetAngle", 360.0},
                    {"spinnerCstRefSize", "3.5", "CstRefSize", 3.5}};
    EXPECT_NEAR(Spinner("spinnerLineUpLength").GetValue(), 0.0125, 1e-12);
    EXPECT_NEAR(Spinner("spinnerLineUpAngle").GetValue(), 1.5707963267948966, 1e-12);
    for (const auto& [row, typed, key, stored] : measures) {
        KivUserHand::Type(Spinner(row), typed);
        EXPECT_NEAR(Stored(key, -1.0), stored, 1e-9) << row << " " << typed;
    }
}

TEST_F(DrawingPages, RowsWaitForAllTheirSwitches)
{
    OpenOn("int DimDesignMode = 0\nint DimFake = 0\nint Drw_settings_DragModeR14 = 7\n");
    const auto state = [&](const char* row) { return Control(row).IsEnabled(); };
    EXPECT_FALSE(state("checkDimFake") || state("comboDimFake") || state("comboDimBroken"));
    EXPECT_TRUE(KivUserHand::Tick(Check("checkDimDesignMode")));
    EXPECT_TRUE(state("checkDimFake") && state("comboDimBroken") && !state("comboDimFake"));
    EXPECT_TRUE(KivUserHand::Tick(Check("checkDimFake")));
    EXPECT_TRUE(state("comboDimFake"));

    // Constraints are created from any kind of smart picking.
    for (const char* pick :
         {"checkPickCoincid", "checkPickAlign", "checkPickParaPerpenTang", "checkPickHoriVerti"}) {
        EXPECT_TRUE(state("checkCstCreation")) << "before " << pick;
        EXPECT_TRUE(KivUserHand::Tick(Check(pick)));
    }
    EXPECT_FALSE(state("checkCstCreation") || state("comboSmartPickColor"));

    // A mode that there is none of is no button's, and stays until one is chosen.
    for (const char* radio : {"radioDragStandard", "radioDragMinimum", "radioDragRelaxation"})
        EXPECT_FALSE(IsChosen(radio));
    EXPECT_TRUE(KivUserHand::Choose(Radio("radioDragMinimum")));
    EXPECT_EQ(Stored("Drw_settings_DragModeR14", 9), 1);
}

} // namespace
