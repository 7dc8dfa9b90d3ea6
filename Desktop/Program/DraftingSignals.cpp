#include "Program/DraftingSignals.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM};

// A signal handler may do no more than write: the reading end wakes the event loop.
int pipeEnds[2] = {-1, -1};

void Wake(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = write(pipeEnds[1], &byte, 1);
}

} // namespace

DraftingSignals::DraftingSignals()
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0) return; // signals end the process as before
    _notifier.emplace(pipeEnds[0], QSocketNotifier::Read);
    connect(&*_notifier, &QSocketNotifier::activated, this, [this] {
        char bytes[16];
        while (read(pipeEnds[0], bytes, sizeof bytes) > 0) {
        }
        emit EndWanted();
    });
    // A second signal finds the old handling: it ends a program that does not come to an end by itself.
    struct sigaction action {};
    action.sa_handler = &Wake;
    action.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    for (const int signal : kSignals) sigaction(signal, &action, nullptr);
}

DraftingSignals::~DraftingSignals()
{
    if (!_notifier) return;
    for (const int signal : kSignals) std::signal(signal, SIG_DFL);
    _notifier.reset();
    for (int& end : pipeEnds) {
        close(end);
        end = -1;
    }
}
