#include "KivDrwSettingAccess.h"
#include "KivDrwWorkbench.h"
#include "SketcherTest.h"

namespace {

using namespace KivDrwKeys;

class RunTimeReaders : public SketcherTest {
protected:
    template <class T> T Stored(const KivDrwKey<T>& key) { return KivDrwRead(KivDrwRepository(), key); }
    KivDraftingSettings& drafting = *KivDrwDraftingSettings::GetDraftingSettings();
};

// Every accessor of the general settings, as texts.
std::string Everything(KivDraftingSettings& settings)
{
    std::ostringstream all;
    using Switch = HRESULT (KivDraftingSettings::*)(unsigned char&);
    for (const Switch get :
         {&KivDraftingSettings::GetShowRuler, &KivDraftingSettings::GetDisplayGrid,
          &KivDraftingSettings::GetSnapToPoint, &KivDraftingSettings::GetAllowDistortions,
          &KivDraftingSettings::GetSheetColorGraduated, &KivDraftingSettings::GetDetailColorGraduated,
          &KivDraftingSettings::GetDisplayParameter, &KivDraftingSettings::GetDisplayRelation,
          &KivDraftingSettings::Get2DAxisDisplay, &KivDraftingSettings::Get2DAxisZoom,
          &KivDraftingSettings::GetHideWhenStartWkb, &KivDraftingSettings::GetRotationAutoSnap}) {
        unsigned char value = 99;
        EXPECT_EQ((settings.*get)(value), S_OK);
        all << int(value) << ' ';
    }
    using Measure = HRESULT (KivDraftingSettings::*)(double&);
    for (const Measure get :
         {&KivDraftingSettings::GetPrimarySpaceH, &KivDraftingSettings::GetPrimarySpaceV,
          &KivDraftingSettings::Get2DAxisLength, &KivDraftingSettings::GetRotationSnapAngle}) {
        double value = -1.0;
        EXPECT_EQ((settings.*get)(value), S_OK);
        all << value << ' ';
    }
    int h = 0, v = 0, r = 0, g = 0, b = 0, dr = 0, dg = 0, db = 0;
    settings.GetGraduationH(h);
    settings.GetGraduationV(v);
    settings.GetSheetColor(r, g, b);
    settings.GetDetailColor(dr, dg, db);
    all << h << ' ' << v << ' ' << r << ' ' << g << ' ' << b << ' ' << dr << ' ' << dg << ' ' << db;
    return all.str();
}

constexpr const char* kDefaults = "0 1 1 0 0 0 1 1 1 1 0 0 100 100 30 15 10 10 255 255 255 255 255 255";

TEST_F(RunTimeReaders, AnswerDefaultsWithoutAStoreAndStoredValuesWithOne)
{
    KivDraftingSettingsAdapt without;
    EXPECT_EQ(Everything(without), kDefaults);
    EXPECT_EQ(Everything(drafting), kDefaults);
    box.Write(box.File("user"),
              "int Ruler = -7\nint Drw_settings_GridDisplay = 0\nint Drw_settings_GridSnapPt = 0\n"
              "int Drw_settings_AllowDistortions = 2\nint GraduatedColor = 1\n"
              "int GraduatedColorDitto = 1\nint TreeParameters = 0\nint TreeFormulas = 0\n"
              "int ViewReferential = 0\nint ViewRefZoom = 0\nint HideWhenStartWkb = 1\n"
              "int RotSnapAuto = 1\ndouble Drw_settings_GridPrimarySpacing = 1\n"
              "double Drw_settings_GridVPrimarySpacing = 2\ndouble ViewAxisSize = 3\n"
              "double RotSnapAngle = 4\nint Drw_settings_GridSecondaryStep = 5\n"
              "int Drw_settings_GridVSecondaryStep = 6\nfloat BackgroundColorRed = 0.5\n"
              "float BackgroundColorGreen = 1\nfloat BackgroundColorBlue = 0.99\n"
              "float BackgroundColorRedDitto = 3e9\nfloat BackgroundColorGreenDitto = -3e9\n"
              "float BackgroundColorBlueDitto = 2\n");
    KivSettingRepository::ForgetAll();
    // A component is cut before it is scaled; beyond any int it counts as the greatest, and the product
    // wraps.
    EXPECT_EQ(Everything(drafting), "1 0 0 1 1 1 0 0 0 0 1 1 1 2 3 4 5 6 0 255 0 2147483393 2147483393 510");
    box.Write(box.File("user"), "string Ruler = \"1\"\ndouble Drw_settings_GridSecondaryStep = 5\n");
    KivSettingRepository::ForgetAll();
    for (int twice = 0; twice < 2; ++twice)
        EXPECT_EQ(Everything(drafting), kDefaults) << "values of another type";
    ASSERT_EQ(box.diagnostics.size(), 2U) << "said once each";
    EXPECT_EQ(box.diagnostics[0].key, "Ruler");
    EXPECT_EQ(box.diagnostics[0].line, 1);
}

TEST_F(RunTimeReaders, ConstraintsNeedSomethingToDetect)
{
    sketcher.SetCreateConstraint(1, 0);
    EXPECT_EQ(sketcher.GetValidateConstraint(), 1);
    for (const auto set : {&KivSketcherSettings::SetPosSupports, &KivSketcherSettings::SetPosHorVertTo,
                           &KivSketcherSettings::SetDirHorVert, &KivSketcherSettings::SetDirParallel})
        (sketcher.*set)(0, 0);
    EXPECT_EQ(sketcher.GetCreateConstraint(), 0);
    EXPECT_EQ(Stored(CstCreation), 1);
    for (const int type : {1, 2, 4, 10}) EXPECT_EQ(sketcher.GetValidateCstType(type), 0);
    for (const int type : {0, 3, 9, 11, -1}) EXPECT_EQ(sketcher.GetValidateCstType(type), 1);
}

TEST_F(RunTimeReaders, ColorsArePackedByDiagnostic)
{
    unsigned int r = 1, g = 2, b = 3;
    sketcher.GetColorIsolatedElts(r, g, b);
    sketcher.GetColorProtectedElts(r, g, b);
    sketcher.SetColorIsolatedElts(7, 7, 7, 1);
    sketcher.SetColorProtectedElts(7, 7, 7, 1);
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(r * 100 + g * 10 + b, 123U);
    const unsigned int expected[] = {0, 0xFF00FF, 0xFF0000, 0x800000, 0x00FF00, 0};
    for (int diagnostic = 0; diagnostic <= 5; ++diagnostic) {
        sketcher.GetColorDiagElts(diagnostic, r, g, b);
        EXPECT_EQ(r << 16 | g << 8 | b, expected[diagnostic]) << diagnostic;
    }
    const std::pair<int, const KivDrwKey<unsigned int>&> colors[] = {
        {1, Drw_settings_ColorDiagOverDefinedElts}, {2, Drw_settings_ColorDiagNotConsistentElts},
        {3, Drw_settings_ColorDiagNotChangedElts},  {4, Drw_settings_ColorDiagWellDefinedElts},
        {0, Drw_settings_ColorConstructElts},       {-1, Drw_settings_ColorSmartPick}};
    for (const auto& [diagnostic, key] : colors) {
        if (diagnostic > 0) {
            sketcher.SetColorDiagElts(diagnostic, 1, 2, 3, 1);
            sketcher.GetColorDiagElts(diagnostic, r, g, b);
        } else if (diagnostic == 0) {
            sketcher.SetColorConstructElts(1, 2, 3, 1);
            sketcher.GetColorConstructElts(r, g, b);
        } else {
            sketcher.SetColorSmartPick(1, 2, 3, 1);
            sketcher.GetColorSmartPick(r, g, b);
        }
        EXPECT_EQ(Stored(key), 0x010203U) << key.name;
        EXPECT_EQ(r << 16 | g << 8 | b, 0x010203U) << key.name;
        EXPECT_EQ(Heard(), "geometry ");
        KivDrwRepository()->ResetToAdminValues(&key.name, 1);
    }
    r = 0x43U;
    Kiv2DBaseSketcherSettingsAdapt::GetRGB(0xFFFFFF, &r, nullptr, &b);
    Kiv2DBaseSketcherSettingsAdapt::SetRGB(nullptr, 1, 2, 3);
    EXPECT_EQ(r, 0x43U);
}

TEST_F(RunTimeReaders, LockedKeysBearSettersAndStillNotify)
{
    box.NameLayers({"site"});
    box.Write(box.File("site"), "lock double Drw_settings_GridPrimarySpacing = 42\n");
    KivSettingRepository::ForgetAll();
    sketcher.SetGridPrimSpac(7.0, 1);
    EXPECT_EQ(sketcher.GetGridPrimSpac(), 42.0);
    EXPECT_EQ(Heard(), "grid ");
}

} // namespace
