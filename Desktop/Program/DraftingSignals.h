#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <optional>

// Turns SIGINT and SIGTERM into one signal that arrives between events, so that the program ends in order.
// The handling that was in place comes back with its end. One at a time.
class DraftingSignals : public QObject {
    Q_OBJECT

public:
    DraftingSignals();
    ~DraftingSignals() override;

signals:
    void EndWanted();

private:
    std::optional<QSocketNotifier> _notifier;
};
