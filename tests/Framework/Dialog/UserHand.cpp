#include "Dialog/KivCombos.h"
#include "Dialog/KivDlgButtons.h"
#include "Dialog/KivDlgFrame.h"
#include "Dialog/KivDlgLabel.h"
#include "Dialog/KivDlgLock.h"
#include "Dialog/KivDlgSpinner.h"
#include "Dialog/KivUserHand.h"

#include <gtest/gtest.h>

namespace {

class Listener : public KivCommand {
public:
    Listener() : KivCommand(nullptr, "listener") {}
    void Hear(KivCommand*, KivNotification*, void*) { ++heard; }
    int heard = 0;
};

class UserHand : public testing::Test {
protected:
    KivDlgFrame page{nullptr, "page"};
    Listener listener;

    KivSettingInfo Locked()
    {
        KivSettingInfo info;
        info.locked = true;
        info.lockLayer = "site";
        return info;
    }
};

TEST_F(UserHand, ReachesOnlyWhatAUserCould)
{
    auto* button = new KivDlgCheckButton(&page, "check", 0);
    auto* lock = new KivDlgLock(&page, "checkLock", KivSettingInfo(), 0);
    lock->AddAssociatedDialog(button);
    listener.AddAnalyseNotificationCB(button, button->GetChkBModifyNotification(), &Listener::Hear, nullptr);
    EXPECT_TRUE(KivUserHand::Tick(*button));
    EXPECT_EQ(button->GetState(), KivDlgChecked);

    button->SetSensitivity(KivDlgDisabled);
    EXPECT_FALSE(KivUserHand::Tick(*button));
    button->SetSensitivity(KivDlgEnabled);
    lock->SetInfo(Locked());
    button->SetSensitivity(KivDlgEnabled);
    EXPECT_EQ(KivUserHand::Tick(*button).why, lock->GetReason());
    lock->SetInfo(KivSettingInfo());
    EXPECT_EQ(button->GetState(), KivDlgChecked);
    EXPECT_EQ(listener.heard, 1);

    delete lock; // the padlock dies first: nothing locks any more
    EXPECT_TRUE(KivUserHand::Tick(*button));
}

TEST_F(UserHand, TurnsAndTypesWithinTheRange)
{
    auto* spinner = new KivDlgSpinner(&page, "spinner", 0);
    listener.AddAnalyseNotificationCB(spinner, spinner->GetSpinnerModifyNotification(), &Listener::Hear,
                                      nullptr);
    spinner->SetUnit(KivDlgUnitDegree);
    spinner->SetMinMaxStep(0.017453292519943393, 6.1959188445799045, 0.017453292519943393, 1);
    for (const char* inside : {"1", "355", "100°", "100 gr"})
        EXPECT_TRUE(KivUserHand::Type(*spinner, inside)) << inside;
    for (const char* outside : {"0.99", "355.01", "-90", "wide"})
        EXPECT_FALSE(KivUserHand::Type(*spinner, outside).why.IsEmpty()) << outside;
    for (const int steps : {-1000, -1}) EXPECT_TRUE(KivUserHand::Turn(*spinner, steps));
    EXPECT_EQ(spinner->GetValue(), 0.017453292519943393);
    EXPECT_EQ(listener.heard, 5) << "at the end nothing changes";

    // A limit is what is printed for it, in any unit, and nothing that only prints alike.
    spinner->SetUnit(KivDlgUnitRadian);
    const std::string least(spinner->Print(0.017453292519943393).View());
    EXPECT_EQ(least, "0.017 rad") << "below the limit";
    EXPECT_TRUE(KivUserHand::Type(*spinner, KivUnicodeString(least)));
    EXPECT_EQ(spinner->GetValue(), 0.017453292519943393);
    EXPECT_FALSE(KivUserHand::Type(*spinner, "0.0171 rad"));
    spinner->SetUnit(KivDlgUnitKilometer);
    spinner->SetMinMaxStep(0.0, 0.3048, 0.005, 1);
    EXPECT_FALSE(KivUserHand::Type(*spinner, "-1 mm"));
    EXPECT_FALSE(KivUserHand::Type(*spinner, "305 mm"));
    for (const char* limit : {"1 ft", "12 in", "30,48 cm", "0"})
        EXPECT_TRUE(KivUserHand::Type(*spinner, limit)) << limit;

    // What a person types is not cut, nor guessed at; what a page puts there is its own affair.
    spinner->SetUnit(KivDlgUnitNone);
    spinner->SetMinMaxStep(1.0, 2000.0, 1.0, 1);
    EXPECT_EQ(KivUserHand::Type(*spinner, "1,500").why,
              "“1,500” can mean 1.5 or 1500: please type 1.5 or 1500.");
    EXPECT_TRUE(KivUserHand::Type(*spinner, "10.5"));
    spinner->SetWholeNumbers(true);
    EXPECT_EQ(KivUserHand::Type(*spinner, "11.5").why, "“11.5” is not a whole number.");
    EXPECT_EQ(spinner->GetValue(), 10.5);
    EXPECT_TRUE(KivUserHand::Type(*spinner, "11,0"));
}

TEST_F(UserHand, ChoosesAnyColorAndNamesIt)
{
    auto* combo = new KivComboColor(&page, "combo", 0, 255, 255, 255, 0, 0, 0);
    listener.AddAnalyseNotificationCB(combo, combo->GetComboSelectNotification(), &Listener::Hear, nullptr);
    EXPECT_TRUE(KivUserHand::ChooseColor(*combo, 12, 34, 56));
    EXPECT_TRUE(KivUserHand::ChooseColor(*combo, 12, 34, 56));
    unsigned int r = 0, g = 0, b = 0;
    KivUnicodeString name;
    EXPECT_EQ(combo->GetSelectedColor(&r, &g, &b, &name), 1);
    EXPECT_EQ(name, "Custom (12, 34, 56)");
    const int lines = combo->GetLineCount();
    EXPECT_TRUE(KivUserHand::ChooseColor(*combo, 1, 2, 3));
    EXPECT_EQ(combo->GetLineCount(), lines) << "colors of one's own pile up";
    EXPECT_TRUE(KivUserHand::Choose(*combo, 6));
    EXPECT_EQ(combo->GetSelectedColor(&r, &g, &b), 1);
    EXPECT_EQ((KivColor{r, g, b}), (KivColor{255, 0, 0}));
    EXPECT_FALSE(KivUserHand::Choose(*combo, lines));
    EXPECT_FALSE(KivUserHand::ChooseColor(*combo, 256, 0, 0));
    EXPECT_EQ(listener.heard, 3);
}

TEST_F(UserHand, LabelsGrayWithTheLastOfTheirControls)
{
    auto* spinner = new KivDlgSpinner(&page, "spinner", 0);
    auto* label = new KivDlgLabel(&page, "label", 0);
    label->AddLabeledControl(spinner);
    auto* second = new KivDlgSpinner(&page, "second", 0);
    label->AddLabeledControl(second);
    spinner->SetSensitivity(KivDlgDisabled);
    EXPECT_TRUE(label->IsEnabled());
    EXPECT_EQ(label->GetLabeledControl(), second) << "its letter leads to what can be used";
    second->SetSensitivity(KivDlgDisabled);
    EXPECT_FALSE(label->IsEnabled());
    delete second;
    EXPECT_FALSE(label->IsEnabled());
    delete spinner;
    EXPECT_TRUE(label->IsEnabled());
}

} // namespace
