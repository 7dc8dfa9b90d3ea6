#include "Command/KivCallbackManager.h"
#include "Command/KivCommand.h"

#include <gtest/gtest.h>

namespace {

class Publisher : public KivCommand {
public:
    Publisher() : KivCommand(nullptr, "publisher") {}
    KivNotification modified{"modified"};
    KivNotification other{"other"};
};

class Subscriber : public KivCommand {
public:
    explicit Subscriber(KivCommand* parent = nullptr) : KivCommand(parent, "subscriber") {}
    void Count(KivCommand*, KivNotification*, void*) { ++count; }
    void Act(KivCommand*, KivNotification*, void*) { action(); }
    int count = 0;
    std::function<void()> action;
};

class Notifications : public testing::Test {
protected:
    void TearDown() override
    {
        KivCommand::DrainDelayedDestruction();
        EXPECT_EQ(KivBaseUnknown::LiveObjects(), _before);
    }

private:
    long _before = KivBaseUnknown::LiveObjects();
};

TEST_F(Notifications, ReachThoseWhoAskedAndBearTheDeathOfAnybodyOnTheWay)
{
    auto publisher = std::make_unique<Publisher>();
    Subscriber killer;
    auto victim = std::make_unique<Subscriber>();
    killer.AddAnalyseNotificationCB(publisher.get(), &publisher->modified, &Subscriber::Act, nullptr);
    victim->AddAnalyseNotificationCB(publisher.get(), &publisher->modified, &Subscriber::Count, nullptr);
    killer.action = [&] { victim.reset(); };
    publisher->SendNotification(&publisher->modified);

    Subscriber last, left;
    last.AddAnalyseNotificationCB(publisher.get(), &publisher->modified, &Subscriber::Count, nullptr);
    left.AddAnalyseNotificationCB(publisher.get(), &publisher->other, &Subscriber::Count, nullptr);
    left.AddAnalyseNotificationCB(nullptr, &publisher->other, &Subscriber::Count, nullptr);
    publisher->SendNotification(&publisher->other);
    EXPECT_EQ(left.count, 1);
    killer.action = [&] { publisher.reset(); };
    publisher->SendNotification(&publisher->modified);
    EXPECT_EQ(last.count, 0);
}

TEST_F(Notifications, DelayedDestructionSilencesAtOnceAndWaitsForTheEvent)
{
    Publisher publisher;
    KivWeakPtr<Subscriber> dialog = new Subscriber;
    Subscriber child(dialog.Get()); // as a control of the dialog
    child.AddAnalyseNotificationCB(&publisher, &publisher.modified, &Subscriber::Count, nullptr);
    dialog->AddAnalyseNotificationCB(&publisher, &publisher.modified, &Subscriber::Act, nullptr);
    dialog->action = [&] {
        dialog->RequestDelayedDestruction();
        dialog->RequestDelayedDestruction();
        KivCommand::DrainDelayedDestruction();
        EXPECT_TRUE(dialog) << "destroyed while its own callback runs";
    };
    publisher.SendNotification(&publisher.modified);
    publisher.SendNotification(&publisher.modified);
    EXPECT_EQ(child.count, 1);
    KivCommand::DrainDelayedDestruction();
    EXPECT_FALSE(dialog);
}

TEST_F(Notifications, CallbackManagerBearsChangesWhileItDispatches)
{
    auto manager = std::make_unique<KivCallbackManager>();
    std::string calls;
    KivCallbackId second = 0;
    manager->AddCallback("grid", [&](KivCallbackEvent, KivNotification*) {
        calls += "1";
        manager->RemoveCallback(second);
        manager->AddCallback("grid", [&](KivCallbackEvent, KivNotification*) { calls += "late"; });
    });
    second = manager->AddCallback("grid", [&](KivCallbackEvent, KivNotification*) { calls += "2"; });
    manager->AddCallback("snap", [&](KivCallbackEvent, KivNotification*) { calls += "s"; });
    manager->AddCallback("grid", [&](KivCallbackEvent, KivNotification*) {
        calls += "3";
        manager.reset();
    });
    manager->AddCallback("grid", [&](KivCallbackEvent, KivNotification*) { calls += "never"; });
    manager->DispatchCallbacks("grid", nullptr);
    EXPECT_EQ(calls, "13");
}

} // namespace
