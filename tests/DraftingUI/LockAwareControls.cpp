#include "KivDrwControlServices.h"
#include "KivDrwSettingAccess.h"
#include "Lock/KivDrwLockCombos.h"
#include "Lock/KivDrwLockControls.h"
#include "Lock/KivDrwLockDialog.h"
#include "Lock/KivDrwLockRow.h"
#include "Parameter/KivControlUnit.h"
#include "Parameter/KivParmEngine.h"
#include "Parameter/KivParmMagnitude.h"
#include "Support/KivSettingsSandbox.h"

#include <gtest/gtest.h>

namespace {

class LockAwareControls : public testing::Test {
protected:
    void TearDown() override
    {
        page.reset();
        EXPECT_EQ(KivBaseUnknown::LiveObjects(), _before);
    }
    void LockRuler()
    {
        box.NameLayers({"site"});
        box.Write(box.File("site"), "lock int Ruler = 1\n");
        KivSettingRepository::ForgetAll();
    }
    // One of each kind, on the setting "Ruler".
    std::vector<KivDrwLockDialog*> OneOfEach(KivSettingRepository* repository)
    {
        KivDlgFrame* p = page.get();
        return {new KivDrwLockCheckButton(repository, "Ruler", p, "checkGrid", 0UL),
                new KivDrwLockCombo(repository, "Ruler", p, "checkGrid", 0UL),
                new KivDrwLockComboColor(repository, "Ruler", p, "checkGrid", 0UL, 1U, 2U, 3U, 0),
                new KivDrwLockComboDashed(repository, "Ruler", p, "checkGrid", 1, 0UL, 0U),
                new KivDrwLockComboWeight(repository, "Ruler", p, "checkGrid", 0UL, 0U),
                new KivDrwLockEditor(repository, "Ruler", p, "checkGrid", 0UL),
                new KivDrwLockSpinner(repository, "Ruler", p, "checkGrid", 0UL)};
    }

private:
    long _before = KivBaseUnknown::LiveObjects();

protected:
    KivSettingsSandbox box;
    std::unique_ptr<KivDlgFrame> page = std::make_unique<KivDlgFrame>(nullptr, "page");
};

TEST_F(LockAwareControls, AreNamedPlacedAndGovernedByTheirPadlock)
{
    LockRuler();
    for (KivDrwLockDialog* row : OneOfEach(KivDrwRepository())) {
        SCOPED_TRACE(row->IsA());
        ASSERT_NE(row->GetDialog(), nullptr);
        EXPECT_EQ(row->GetName(), "checkGrid_dialog");
        auto* lock = static_cast<KivDlgLock*>(row->FindDialog("checkGridLock"));
        ASSERT_NE(lock, nullptr);
        EXPECT_EQ(lock->GetGridConstraints().column, 0);
        EXPECT_EQ(lock->GetGridConstraints().attachment, 30U);
        EXPECT_EQ(row->GetDialog()->GetGridConstraints().column, 1);
        EXPECT_EQ(row->GetDialog()->GetGridConstraints().attachment, 88U);
        EXPECT_TRUE(row->IsAKindOf("KivDrwLockControl") && row->IsAKindOf("KivDlgFrame"));

        row->SetSensitivity(KivDlgEnabled);
        EXPECT_EQ(row->GetSensitivity(), KivDlgDisabled);
        // Not even the framework's own operation opens it.
        row->GetDialog()->SetSensitivity(KivDlgEnabled);
        EXPECT_FALSE(row->GetDialog()->IsEnabled());
        lock->SetInfo(KivSettingInfo());
        row->SetSensitivity(KivDlgEnabled);
        EXPECT_EQ(row->GetSensitivity(), KivDlgEnabled);
        row->SetSensitivity(KivDlgDisabled);
        EXPECT_EQ(row->GetSensitivity(), KivDlgDisabled);
        row->SetSensitivity(KivDlgEnabled);

        row->SetTitle("title");
        EXPECT_NE(lock->GetTitle(), "title");
        EXPECT_EQ(static_cast<KivDlgFrame*>(row)->GetHelp(), "");

        KivSettingInfo locked;
        KivDrwRepository()->GetInfo("Ruler", &locked, 0);
        lock->SetInfo(locked);
        const KivUnicodeString why = lock->GetReason();
        delete lock; // the padlock dies first
        EXPECT_EQ(row->GetSensitivity(), KivDlgDisabled);
        row->SetSensitivity(KivDlgEnabled);
        row->GetDialog()->SetSensitivity(KivDlgEnabled);
        EXPECT_FALSE(row->GetDialog()->IsEnabled()) << "the setting is still locked";
        EXPECT_EQ(row->GetDialog()->WhyDisabled(), why);
        delete row->GetDialog(); // then the control
        EXPECT_EQ(row->GetDialog(), nullptr);
        EXPECT_EQ(row->GetName(), "checkGrid");
        EXPECT_EQ(row->GetTitle(), "checkGrid");
        row->SetTitle("nobody");
        row->SetLongHelp("nobody");
    }
}

TEST_F(LockAwareControls, AnswerTheirFallbacksWithoutAControl)
{
    const std::vector<KivDrwLockDialog*> rows = OneOfEach(nullptr);
    for (KivDrwLockDialog* row : rows) {
        delete row->GetDialog();
        auto* control = static_cast<KivDrwLockControl*>(row);
        control->SetPrecision(9);
        EXPECT_EQ(control->GetUnit(), 42);
        EXPECT_EQ(control->GetPrecision(), 1);
        EXPECT_EQ(control->GetMagnitude(), 11);
    }
    auto* check = static_cast<KivDrwLockCheckButton*>(rows[0]);
    check->SetState(KivDlgChecked, 1);
    EXPECT_EQ(check->GetChkBModifyNotification(), nullptr);
    EXPECT_EQ(check->GetChkBDoubleClickNotification(), nullptr);
    auto* color = static_cast<KivDrwLockComboColor*>(rows[2]);
    unsigned int r = 7, g = 7, b = 7;
    EXPECT_EQ(color->GetCombo(), nullptr);
    EXPECT_EQ(color->GetSelectedColor(&r, &g, &b), 0);
    EXPECT_EQ(r, 7U);
    EXPECT_EQ(static_cast<KivDrwLockComboDashed*>(rows[3])->GetSelect(), 0U);
    EXPECT_EQ(static_cast<KivDrwLockComboWeight*>(rows[4])->GetSelect(), 1U);
    auto* spinner = static_cast<KivDrwLockSpinner*>(rows[6]);
    spinner->SetValue(4.0, 1);
    double least = 1.0, most = 2.0, step = 3.0;
    spinner->GetMinMaxStep(least, most, step);
    EXPECT_EQ(least + most + step, 6.0);
    EXPECT_EQ(spinner->GetValue(), 0.0);
    EXPECT_EQ(spinner->GetFormat(), nullptr);
    EXPECT_EQ(spinner->GetSpinnerModifyNotification(), nullptr);
}

TEST_F(LockAwareControls, FramesAndLabelsKeepTheRowsInLine)
{
    LockRuler();
    auto* group = new KivDrwLockFrame(KivDrwRepository(), "Ruler", page.get(), "frame", KivDlgGridLayout);
    EXPECT_EQ(group->GetName(), "framelocked");
    KivDlgCheckButton inside(group->GetDialog(), "inside", 0UL);
    EXPECT_FALSE(inside.IsEnabled());

    auto* label = new KivDrwLockLabel(page.get(), "label", 1);
    label->SetTitle("Title");
    EXPECT_EQ(label->GetDialog()->GetTitle(), "Title");
    auto* bare = new KivDrwLockLabel(page.get(), "bare", 0);
    bare->SetTitle("Title");
    EXPECT_EQ(bare->GetTitle(), "bare");
    ASSERT_EQ(bare->Children().size(), 1U);
    EXPECT_EQ(bare->Children()[0]->GetVisibility(), 4U);
    EXPECT_EQ(bare->Children()[0]->GetIconName(), "CheckLock");
}

TEST_F(LockAwareControls, LineTypesColorsAndRangesFollowTheirContracts)
{
    auto* without = new KivDrwLockComboDashed(nullptr, "", page.get(), "dashed", 0, 0UL, 0U);
    EXPECT_EQ(without->GetCombo()->GetLineCount(), 7);
    without->SetSelect(8);
    EXPECT_EQ(without->GetCombo()->GetSelect(), -1) << "there is none";

    auto* color = new KivDrwLockComboColor(page.get(), "color", KivSettingInfo());
    unsigned int r = 0, g = 0, b = 0;
    KivUnicodeString name;
    EXPECT_EQ(color->GetSelectedColor(&r, &g, &b), 1);
    EXPECT_EQ(r & g & b, 255U);
    color->SetSelectedColor(255, 0, 0);
    EXPECT_EQ(color->GetSelectedColor(&r, &g, &b, &name), 0) << "deliberate";
    EXPECT_EQ(name, "Red");

    auto* spinner = new KivDrwLockSpinner(page.get(), "spinner", KivSettingInfo(), 0UL);
    spinner->SetRange(0.0F, 100.0F, 11);
    float least = 0, most = 0, step = 0;
    int values = 0;
    spinner->GetRange(least, most, values);
    EXPECT_EQ(values, 11);
    spinner->GetRange(least, most, step);
    EXPECT_EQ(step, 10.0F);
}

TEST_F(LockAwareControls, ServicesRefuseWhatIsNotTheirs)
{
    using Services = KivDrwSettingsServices;
    auto* check = new KivDrwLockCheckButton(page.get(), "check", KivSettingInfo(), 0UL);
    auto* spinner = new KivDrwLockSpinner(page.get(), "spinner", KivSettingInfo(), 0UL);
    auto* color = new KivDrwLockComboColor(page.get(), "color", KivSettingInfo());
    unsigned char on = 9;
    double value = 9.0;
    int r = 9, g = 9, b = 9;
    for (KivCommand* stranger : {static_cast<KivCommand*>(nullptr), static_cast<KivCommand*>(check)}) {
        EXPECT_EQ(Services::GetValueFromCheckButton(check, stranger, on), E_FAIL);
        EXPECT_EQ(Services::GetValueFromSpinner(spinner, stranger, 1.0, value), E_FAIL);
        EXPECT_EQ(Services::GetValueFromComboColor(color, stranger, r, g, b), E_FAIL);
    }
    EXPECT_EQ(Services::UpdateCheckButton(nullptr, 1), E_FAIL);
    EXPECT_EQ(Services::UpdateSpinner(nullptr, 1.0), E_FAIL);
    EXPECT_EQ(Services::UpdateComboColor(color, 256, 0, 0), E_FAIL);
    EXPECT_EQ(Services::UpdateComboColor(color, 0, -1, 0), E_FAIL);
    EXPECT_EQ(on + value + r + g + b, 45.0);

    SetColorRGB(color, 1, 2, 3);
    GetColorRGB(color, r, g, b);
    EXPECT_EQ(r * 100 + g * 10 + b, 123);
    SetColorRGB(static_cast<KivComboColor*>(nullptr), 1, 2, 3);
}

TEST_F(LockAwareControls, WeightsAndFieldsAreSelected)
{
    auto* weight = new KivComboWeight(page.get(), "weight", 0UL, 0U, 0);
    const double millimeters[] = {0.1, 0.35, 0.7, 1.05, 1.4, 1.75, 2.1};
    for (unsigned int index = 0; index < 7; ++index) {
        weight->SetSelect(index);
        SetThicknessMM(weight, 2);
        EXPECT_EQ(GetThicknessMM(weight), millimeters[index]);
    }
    weight->KivDlgCombo::SetSelect(-1);
    EXPECT_EQ(GetThicknessMM(weight), 0.1);
    EXPECT_EQ(GetThicknessMM(nullptr), 0.0);
    SetThicknessMM(nullptr, 1);

    auto* combo = new KivDlgCombo(page.get(), "combo", 0UL);
    const auto shown = [&] {
        std::string lines;
        KivUnicodeString line;
        for (int i = 0; i < combo->GetLineCount(); ++i) {
            combo->GetLine(line, i);
            lines += (i == combo->GetSelect() ? "*" : "") + std::string(line.View()) + " ";
        }
        return lines;
    };
    for (const double value : {2.0, 1.0, 5.0, 2.5, 2.0}) SetField(combo, value);
    EXPECT_EQ(shown(), "1 *2 2.5 5 ");
    combo->ClearLine();
    for (const char* text : {"b", "a", "c", "b"}) SetField(combo, KivUnicodeString(text));
    EXPECT_EQ(shown(), "a *b c ");
    SetField(nullptr, 1.0);
}

TEST_F(LockAwareControls, FollowTheUnitsOfTheParameterEngine)
{
    KivParmEngine& engine = KivParmEngine::Instance();
    auto* spinner = new KivDrwLockSpinner(page.get(), "spinner", KivSettingInfo(), 0UL);
    const std::pair<const char*, int> lengths[] = {{"METER", 41},   {"MM", 42},      {"CM", 43},
                                                   {"KM", 44},      {"INCH", 45},    {"FOOT", 46},
                                                   {"F_I_F64", 47}, {"F_I_F16", 48}, {"F_I_DEC", 49}};
    for (const auto& [name, number] : lengths) {
        engine.SetCurrentUnit(KivParmDictionary::LengthType, name);
        DrwOptionsServices::SetControlUnitToPqeLength(spinner, 3);
        EXPECT_EQ(spinner->GetUnit(), number) << name;
    }
    engine.SetForeignUnit(KivParmDictionary::LengthType, "CUBIT");
    DrwOptionsServices::SetControlUnitToPqeLength(spinner, 5);
    EXPECT_EQ(spinner->GetUnit(), 49);
    EXPECT_EQ(spinner->GetPrecision(), 5);
    engine.SetForeignUnit(KivParmDictionary::LengthType, nullptr);
    DrwOptionsServices::SetControlUnitToPqeLength(spinner, 3);
    EXPECT_EQ(spinner->GetUnit(), 42);
    engine.SetCurrentUnit(KivParmDictionary::LengthType, "MM");

    for (const auto& [name, number] : {std::pair("RADIAN", 11), {"GRADE", 13}, {"DEGREE", 12}}) {
        engine.SetCurrentUnit(KivParmDictionary::AngleType, name);
        DrwOptionsServices::SetControlUnitToPqeAngle(spinner, 3);
        EXPECT_EQ(spinner->GetUnit(), number) << name;
    }
    spinner->SetUnit(KivDlgUnitInch);
    engine.Withhold(KivParmDictionary::AngleType, true);
    DrwOptionsServices::SetControlUnitToPqeAngle(spinner, 3);
    engine.Withhold(KivParmDictionary::AngleType, false);
    EXPECT_EQ(spinner->GetUnit(), 12);
    DrwOptionsServices::SetControlUnitToPqeAngle(static_cast<KivDlgControl*>(nullptr), 3);
}

} // namespace
