#include "PageFamily.h"

#include <random>

namespace {

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
            if (random() % 10 == 0) session->Reset(Page(table.page.c_str()));
            if (random() % 10 == 0) {
                session->Cancel();
                KivCommand::DrainDelayedDestruction();
                for (const std::string& button : table.buttons) ASSERT_TRUE(Press(button));
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
    const std::string other = table.page == "General" ? "ManipZoom" : "Ruler";
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

    for (const std::string& button : table.buttons) ASSERT_TRUE(Press(button));
    EXPECT_EQ(Shown(), asOpened);
    DriveAll();
    const Values driven = All();
    EXPECT_TRUE(session->Commit().empty());
    EXPECT_NE(box.Bytes(file), bytes);
    OpenAll();
    EXPECT_EQ(All(), driven);

    session->Reset(Page(table.page.c_str()));
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
    session->Reset(Page(table.page.c_str()));
    EXPECT_TRUE(session->Commit().empty());
    session->Cancel();
}

INSTANTIATE_TEST_SUITE_P(Pages, PageFamily, testing::ValuesIn(PageTables()),
                         [](const auto& table) { return table.param.page; });

} // namespace
