#include "Component/KivVar.h"
#include "Dialog/KivCombos.h"
#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivDlgSpinner.h"
#include "Dialog/KivUserHand.h"
#include "KivDrwSettingAccess.h"
#include "Pages/Kiv2DBaseOptGalFrm.h"
#include "Pages/KivDrwOptAnnotFrm.h"
#include "Pages/KivDrwOptIntFrm.h"
#include "SketcherTest.h"
#include "Tabs/KivDrwOptGeoEditor.h"

#include <functional>

namespace {

template <class T> struct Pair {
    T (KivSketcherSettings::*get)();
    void (KivSketcherSettings::*set)(T value, int notify);
    const KivDrwKey<T>& key;
    const char* event;
    const char* control = nullptr; // on this page
};

// The Geometry page in its editor, beside a sketcher that listens.
class GeometryPage : public SketcherTest {
protected:
    void SetUp() override
    {
        editor->BuildEditor(&page);
        editor->SetUserSettingsValue(nullptr);
    }
    // What is given to a pair is stored and read as what it is taken for, and told when that is asked for.
    template <class T> void Holds(const Pair<T>& pair, T given, T taken)
    {
        SCOPED_TRACE(pair.key.name);
        std::mem_fn(pair.set)(sketcher, given, 0);
        EXPECT_EQ(Heard(), "");
        EXPECT_EQ(KivDrwRead(KivDrwRepository(), pair.key), taken);
        EXPECT_EQ(std::mem_fn(pair.get)(sketcher), taken);
        std::mem_fn(pair.set)(sketcher, given, 1);
        EXPECT_EQ(Heard(), pair.event + (" " + State()));
    }
    // What the sketcher reads while it is told.
    std::string State() override
    {
        unsigned int r = 0, g = 0, b = 0;
        sketcher.GetColorDiagElts(2, r, g, b);
        return std::to_string(sketcher.GetDragMode()) + std::to_string(sketcher.GetPosSupports()) + "-" +
               std::to_string(r) + " ";
    }
    // The first of them alone.
    std::string Event()
    {
        const std::string all = Heard();
        return all.substr(0, all.find(' '));
    }
    template <class T> T& Node(const char* name) { return *static_cast<T*>(page.FindDialog(name)); }

    KivEditorPage page{nullptr, "page", 0UL};
    KivVar<KivDrwOptGeoEditor> editor = KivVar<KivDrwOptGeoEditor>::Adopt(new KivDrwOptGeoEditor);
};

TEST_F(GeometryPage, TellsTheSketcherOfEachChangeAndOfWhatTakesItBack)
{
    const auto tick = [this](const char* name) {
        EXPECT_TRUE(KivUserHand::Tick(Node<KivDlgCheckButton>(name)));
    };
    EXPECT_TRUE(KivUserHand::Choose(Node<KivDlgRadioButton>("radioDragRelaxation")));
    EXPECT_EQ(Heard(), "geometry 21-255 ");
    tick("checkPickCoincid_dialog");
    EXPECT_EQ(Heard(), "completion 20-255 ");
    EXPECT_TRUE(KivUserHand::ChooseColor(Node<KivComboColor>("comboIncons_dialog"), 1, 2, 3));
    EXPECT_EQ(Heard(), "geometry 20-1 ");
    tick("checkCstHori_dialog");
    EXPECT_TRUE(KivUserHand::Turn(Node<KivDlgSpinner>("spinnerCstRefSize_dialog"), 1));
    EXPECT_TRUE(KivUserHand::ChooseColor(Node<KivComboColor>("comboCstColor_dialog"), 1, 2, 3));
    EXPECT_EQ(Heard(), "visualization 20-1 visualization 20-1 visualization 20-1 ");
    tick("checkEndPtsDupli_dialog");
    EXPECT_EQ(Heard(), "") << "the sketcher does not know this one";
    const std::string untouched = "visualization 11-255 geometry 11-255 completion 11-255 ";
    editor->CancelModification(nullptr);
    EXPECT_EQ(Heard(), untouched);
    EXPECT_TRUE(KivUserHand::Choose(Node<KivDlgRadioButton>("radioDragStandard")));
    editor->CommitModification(nullptr);
    EXPECT_EQ(Heard(), "geometry 01-255 ") << "a commit says nothing, deliberately";
    editor->ResetUserSettingsValue();
    EXPECT_EQ(Heard(), untouched);
}

// Whoever changes a setting, this page or another caller of the sketcher: it is read where it was written,
// and the same listeners hear of it.
TEST_F(GeometryPage, EachPairOfTheSketcherHasAKeyAndAnEventOfItsOwn)
{
    using S = KivSketcherSettings;
    using namespace KivDrwKeys;
    const Pair<double> spacings[] = {
        {&S::GetGridPrimSpac, &S::SetGridPrimSpac, Drw_settings_GridPrimarySpacing, "grid"},
        {&S::GetGridVPrimSpac, &S::SetGridVPrimSpac, Drw_settings_GridVPrimarySpacing, "grid"}};
    for (const auto& pair : spacings)
        for (const auto& [given, taken] : {std::pair(0.5, 0.5), {0.0, 100.0}, {7.0, 7.0}, {-5.0, 100.0}})
            Holds(pair, given, taken);
    const Pair<int> steps[] = {
        {&S::GetGridSecStep, &S::SetGridSecStep, Drw_settings_GridSecondaryStep, "grid"},
        {&S::GetGridVSecStep, &S::SetGridVSecStep, Drw_settings_GridVSecondaryStep, "grid"}};
    for (const auto& pair : steps)
        for (const auto& [given, taken] : {std::pair(1, 1), {0, 10}, {2, 2}, {-7, 10}})
            Holds(pair, given, taken);
    const Pair<int> dragMode{&S::GetDragMode, &S::SetDragMode, Drw_settings_DragModeR14, "geometry"};
    for (const auto& [given, taken] : {std::pair(0, 0), {3, 1}, {2, 2}, {-1, 1}})
        Holds(dragMode, given, taken);
    const Pair<int> switches[] = {
        {&S::GetGridVisuMode, &S::SetGridVisuMode, Drw_settings_GridDisplay, "grid"},
        {&S::GetGridSnapMode, &S::SetGridSnapMode, Drw_settings_GridSnapPt, "snap"},
        {&S::GetAllowDistortions, &S::SetAllowDistortions, Drw_settings_AllowDistortions, "grid"},
        {&S::GetPosSupports, &S::SetPosSupports, Drw_settings_CpltPosSupport, "completion", "PickCoincid"},
        {&S::GetPosHorVertTo, &S::SetPosHorVertTo, Drw_settings_CpltPosHorVertTo, "completion", "PickAlign"},
        {&S::GetDirHorVert, &S::SetDirHorVert, Drw_settings_CpltDirHorVert, "completion", "PickHoriVerti"},
        {&S::GetDirParaPerpTan, &S::SetDirParaPerpTan, Drw_settings_CpltDirParPerpTan, "completion",
         "PickParaPerpenTang"},
        {&S::GetDirParallel, &S::SetDirParallel, Drw_settings_CpltDirParPerpTan, "completion"},
        {&S::GetDirPerpend, &S::SetDirPerpend, Drw_settings_CpltDirParPerpTan, "completion"},
        {&S::GetDirTangent, &S::SetDirTangent, Drw_settings_CpltDirParPerpTan, "completion"},
        {&S::GetCreateConstraint, &S::SetCreateConstraint, CstCreation, "completion", "CstCreation"},
        {&S::GetValidateConstraint, &S::SetValidateConstraint, CstCreation, "completion"},
        {&S::GetShowPosition, &S::SetShowPosition, Drw_settings_ShowPosition, "completion", "ShowHV"},
        {&S::GetCreateCenter, &S::SetCreateCenter, Drw_settings_CreateCenter, "geometry", "CreateCenter"},
        {&S::GetDragWithEndPts, &S::SetDragWithEndPts, Drw_settings_DragWithEndPts, "geometry", "DragEndPts"},
        {&S::GetDragElts, &S::SetDragElts, Drw_settings_DragElts, "geometry", "GeomManip"},
        {&S::GetDiagElts, &S::SetDiagElts, Drw_settings_DiagElts, "geometry", "VisuDiagnostic"}};
    for (const auto& pair : switches) {
        KivDrwRepository()->ResetToAdminValues(kKivDrwKeyNames, int(std::size(kKivDrwKeyNames)));
        for (const int value : {0, 9}) Holds(pair, value, int(value != 0));
        if (!pair.control) continue;
        editor->SetUserSettingsValue(nullptr);
        EXPECT_TRUE(KivUserHand::Tick(
            Node<KivDlgCheckButton>(("check" + KivString(pair.control) + "_dialog").ConvertToChar())));
        EXPECT_EQ(Event(), pair.event);
    }
    for (const auto& [get, set, answer] : {std::tuple(&S::GetGridGroundMode, &S::SetGridGroundMode, 0),
                                           {&S::GetViewNormalTo, &S::SetViewNormalTo, 1},
                                           {&S::GetAnimate, &S::SetAnimate, 1},
                                           {&S::GetShowPositionOnCursor, &S::SetShowPositionOnCursor, 1}}) {
        (sketcher.*set)(1 - answer, 1);
        EXPECT_EQ((sketcher.*get)(), answer);
    }
    EXPECT_EQ(Heard(), "") << "there is nothing to tell";
    sketcher.DispatchMultiModify();
    EXPECT_EQ(Event(), "multi");
}

// Each color by its components, and what is stored then.
TEST(ColorsOfPages, AreStoredOnlyWithAllComponentsInRange)
{
    const KivSettingsSandbox box;
    KivDrwOptGeoFrm geometry(nullptr, "DrwSet");
    KivDrwOptIntFrm dimension(nullptr, "DrwSet");
    KivSettingRepository& repository = *KivDrwRepository();
    const auto stored = [&](const char* key, auto value) {
        repository.ReadSetting(key, &value, 1);
        return value;
    };
    int r = 0, g = 0, b = 0;
    geometry.GetSmartPickColor(r, g, b);
    EXPECT_EQ(std::tie(r, g, b), std::tuple(67, 102, 85));
    EXPECT_EQ(geometry.SetSmartPickColor(255, 1, 2), S_OK);
    EXPECT_EQ(geometry.SetCstColor(3, 4, 255), S_OK);
    EXPECT_EQ(dimension.SetDimFakeColor(5, 6, 7), S_OK);
    for (const auto& [red, green, blue] :
         {std::tuple(256, 0, 0), std::tuple(0, -1, 0), std::tuple(0, 0, 256)}) {
        geometry.SetSmartPickColor(red, green, blue);
        geometry.SetCstColor(red, green, blue);
        dimension.SetDimFakeColor(red, green, blue);
        EXPECT_EQ(stored("Drw_settings_ColorSmartPick", 9U), 0xFF0102U);
        EXPECT_EQ(stored("CstColorR", 9) * 1000000 + stored("CstColorG", 9) * 1000 + stored("CstColorB", 9),
                  3004255);
        EXPECT_EQ(stored("DimFakeR", 9) * 10000 + stored("DimFakeG", 9) * 100 + stored("DimFakeB", 9), 50607);
    }
}

TEST(AnnotationPage, ClosesNothingButItsOwnWindows)
{
    const KivSettingsSandbox box;
    KivEditorPage page(nullptr, "page", 0UL);
    auto* const frame = new KivDrwOptAnnotFrm(&page, "DrwSet");
    frame->Build();
    KivDlgDialog other(&page, "annotSnap");
    for (KivCommand* sender : {static_cast<KivCommand*>(nullptr), static_cast<KivCommand*>(&other),
                               static_cast<KivCommand*>(frame->Children().front())}) {
        frame->CloseDlg(sender, nullptr, nullptr);
        EXPECT_FALSE(sender && sender->IsCondemned());
    }
}

// An application that has every group, but no store of its own.
class GeneralWithoutStore : public Kiv2DBaseOptGalFrm {
public:
    GeneralWithoutStore() : Kiv2DBaseOptGalFrm(nullptr, "DrwSet") {}
    int WithFrameRuler() override { return 1; }
    int WithFrameGrid() override { return 1; }
    int WithFrameRotation() override { return 1; }
    int WithFrameColor() override { return 1; }
    int WithFrameTree() override { return 1; }
    int WithFrame2DAxis() override { return 1; }
    int WithFrameHideWhenStartWkb() override { return 1; }
};

TEST(GenericDrawingPages, BuildTheGroupsThatTheirApplicationHas)
{
    Kiv2DBaseOptGalFrm noGeneral(nullptr, "DrwSet");
    Kiv2DBaseOptGeoFrm noGeometry(nullptr, "DrwSet");
    Kiv2DBaseOptDimFrm noDimension(nullptr, "DrwSet");
    GeneralWithoutStore general;
    const std::pair<KivPageFrame*, std::size_t> pages[] = {
        {&noGeneral, 0}, {&noGeometry, 0}, {&noDimension, 0}, {&general, 7}};
    for (const auto& [page, groups] : pages) {
        page->Build();
        page->Initialize();
        page->Write(page, nullptr, nullptr);
        EXPECT_EQ(page->Children().size(), groups);
    }
    // All zeros: what depends on a switch is grayed, and no padlock is closed.
    for (const auto& [name, sensitivity] :
         {std::pair("checkGrid", KivDlgEnabled), {"editorGridSpacingV", KivDlgDisabled}})
        EXPECT_EQ(static_cast<KivDrwLockDialog*>(general.FindDialog(name))->GetSensitivity(), sensitivity);
    double spacing = 7.0;
    int red = 7, green = 7, blue = 7;
    EXPECT_EQ(general.GetPrimSpaceH(spacing), E_FAIL);
    EXPECT_EQ(general.GetSheetColor(red, green, blue), E_FAIL);
    EXPECT_EQ(spacing + red + green + blue, 0.0);
}

} // namespace
