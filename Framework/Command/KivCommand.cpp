#include "Command/KivCommand.h"

#include <utility>

namespace {

int notificationsUnderWay = 0;

std::vector<KivWeakPtr<KivCommand>>& Condemned()
{
    static auto& condemned = *new std::vector<KivWeakPtr<KivCommand>>;
    return condemned;
}

std::function<void(KivCommand&)>& DeliveryProbe()
{
    static auto& probe = *new std::function<void(KivCommand&)>;
    return probe;
}

} // namespace

void KivWeakLink::Watch(KivCommand* target)
{
    if (target == _target) return;
    if (_target) {
        *_link = _next;
        if (_next) _next->_link = _link;
    }
    _target = target;
    if (!_target) return;
    _next = target->_watchers;
    if (_next) _next->_link = &_next;
    _link = &target->_watchers;
    target->_watchers = this;
}

KivCommand::KivCommand(KivCommand* parent, const KivString& name) : _name(name), _parent(parent) {}

KivCommand::~KivCommand()
{
    // Each link takes itself out of the list.
    while (_watchers) _watchers->Watch(nullptr);
}

void KivCommand::Subscribe(KivCommand* from, KivNotification* notification, Method method, void* data)
{
    if (!from || !notification) return;
    from->_subscriptions.push_back({++from->_lastSubscription, notification, this, method, data});
}

void KivCommand::SendNotification(KivNotification* notification)
{
    // A subscriber may change the list, or destroy this object: go on by id over the live list.
    const KivWeakPtr<KivCommand> self(this);
    const unsigned int last = _lastSubscription;
    ++notificationsUnderWay;
    unsigned int done = 0;
    while (self) {
        const Subscription* next = nullptr;
        for (const Subscription& s : _subscriptions) {
            if (s.id > done && s.id <= last && s.notification == notification) {
                next = &s;
                break;
            }
        }
        if (!next) break;
        done = next->id;
        const Subscription subscription = *next;
        if (DeliveryProbe()) DeliveryProbe()(*this);
        if (!self || !Deliver(subscription, notification)) break;
    }
    --notificationsUnderWay;
}

// False when nobody is to be told any more.
bool KivCommand::Deliver(const Subscription& subscription, KivNotification* notification)
{
    if (IsCondemned()) return false;
    KivCommand* subscriber = subscription.subscriber.Get();
    if (subscriber && !subscriber->IsCondemned())
        (subscriber->*subscription.method)(this, notification, subscription.data);
    return true;
}

void KivCommand::SetDeliveryProbe(std::function<void(KivCommand&)> probe)
{
    DeliveryProbe() = std::move(probe);
}

void KivCommand::RequestDelayedDestruction()
{
    if (_condemned) return;
    _condemned = true;
    Condemned().push_back(this);
}

bool KivCommand::IsCondemned() const
{
    for (const KivCommand* command = this; command; command = command->_parent.Get()) {
        if (command->_condemned) return true;
    }
    return false;
}

void KivCommand::DrainDelayedDestruction()
{
    if (notificationsUnderWay > 0) return;
    // A destructor may condemn further objects, or destroy one that waits here.
    while (!Condemned().empty()) {
        const KivWeakPtr<KivCommand> next = Condemned().back();
        Condemned().pop_back();
        delete next.Get();
    }
}
