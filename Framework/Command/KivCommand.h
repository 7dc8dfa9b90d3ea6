#pragma once

#include "Base/KivString.h"
#include "Command/KivNotification.h"
#include "Command/KivWeakPtr.h"
#include "Component/KivClass.h"

#include <functional>
#include <vector>

// The base of everything that sends and receives notifications. Who subscribes and who is subscribed to may
// die in any order, also while a notification is under way.
class KivCommand : public KivClass<KivCommand, KivBaseUnknown> {
public:
    static constexpr const char* Name = "KivCommand";
    using Method = void (KivCommand::*)(KivCommand* from, KivNotification* notification, void* data);

    KivCommand(KivCommand* parent, const KivString& name);
    ~KivCommand() override;

    // The name by which the user's catalogues and other code know this object.
    virtual KivString GetName() const { return _name; }
    KivCommand* GetParent() const { return _parent.Get(); }

    // From now on a notification of `from` calls a method of this object, as method(from, notification,
    // data). A null publisher or notification subscribes nothing.
    template <class T> void AddAnalyseNotificationCB(KivCommand* from, KivNotification* notification,
                                                     void (T::*method)(KivCommand*, KivNotification*, void*),
                                                     void* data)
    {
        Subscribe(from, notification, static_cast<Method>(method), data);
    }

    // Calls every subscriber, in the order of subscription. Nothing is sent by or to what waits for its
    // destruction.
    void SendNotification(KivNotification* notification);

    // For tests: called before a notification is delivered to each subscriber, with its sender; it may
    // destroy anything. An empty function takes it away.
    static void SetDeliveryProbe(std::function<void(KivCommand& from)> probe);

    // Destroys this object once the current event is over (DrainDelayedDestruction); at once it stops sending
    // and receiving.
    void RequestDelayedDestruction();
    // True when the destruction of this object or of one of its parents was asked for.
    bool IsCondemned() const;
    // Called by hosts between events: destroys what asked for it. Inside a notification it does nothing, so
    // that no object dies while a callback of its own runs.
    static void DrainDelayedDestruction();

private:
    friend class KivWeakLink;

    struct Subscription {
        unsigned int id; // in the order of subscription
        KivNotification* notification;
        KivWeakPtr<KivCommand> subscriber;
        Method method;
        void* data;
    };
    void Subscribe(KivCommand* from, KivNotification* notification, Method method, void* data);
    bool Deliver(const Subscription& subscription, KivNotification* notification);

    KivString _name;
    KivWeakPtr<KivCommand> _parent; // not owned
    KivWeakLink* _watchers = nullptr;
    std::vector<Subscription> _subscriptions; // to this object's notifications
    unsigned int _lastSubscription = 0;
    bool _condemned = false;
};
