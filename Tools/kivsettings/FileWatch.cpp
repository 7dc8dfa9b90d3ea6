#include "FileWatch.h"

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace {

// A change that another machine makes on a share is told to nobody.
constexpr int kLongestWait = 30000; // milliseconds

constexpr std::chrono::milliseconds kPatience{200};

// What puts a file in place, takes it away, or does so with a directory on the way to it.
constexpr std::uint32_t kEvents = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_CREATE | IN_DELETE |
                                  IN_DELETE_SELF | IN_MOVE_SELF | IN_ATTRIB;

int OpenSignals()
{
    sigset_t ending;
    sigemptyset(&ending);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&ending, signal);
    if (sigprocmask(SIG_BLOCK, &ending, nullptr) != 0) return -1;
    return signalfd(-1, &ending, SFD_CLOEXEC | SFD_NONBLOCK);
}

void WatchDirectory(int changes, std::filesystem::path directory)
{
    std::uint32_t events = kEvents;
    while (inotify_add_watch(changes, directory.c_str(), events) < 0 && directory.has_relative_path()) {
        directory = directory.parent_path();
        events = IN_CREATE | IN_MOVED_TO | IN_ONESHOT; // until the way is there
    }
}

// Where a file stands and where it leads to when it is a link.
void WatchFile(int changes, const std::filesystem::path& path)
{
    WatchDirectory(changes, path.parent_path());
    std::error_code failed;
    const std::filesystem::path target = std::filesystem::canonical(path, failed);
    if (!failed && target != path) WatchDirectory(changes, target.parent_path());
}

} // namespace

FileWatch::FileWatch(std::vector<KivUnicodeString> files)
    : _files(std::move(files)), _signals(OpenSignals()),
      _changes(std::make_shared<KivFileHandle>(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)))
{
    if (IsOpen()) Watch();
}

// Watching a directory again changes nothing.
void FileWatch::Watch()
{
    const auto watch = [changes = _changes](const KivUnicodeString& file) {
        WatchFile(changes->Get(), file.View());
        return true;
    };
    _calls.Make(_files, watch, kPatience);
}

void FileWatch::Drain()
{
    alignas(inotify_event) char events[4096];
    while (read(_changes->Get(), events, sizeof events) > 0) {
    }
}

FileWatch::Event FileWatch::Wait()
{
    pollfd waited[] = {
        {_changes->Get(), POLLIN, 0},
        {_signals.Get(), POLLIN, 0},
        {STDOUT_FILENO, 0, 0}, // asks for nothing but that it breaks
    };
    while (poll(waited, std::size(waited), kLongestWait) < 0) {
        if (errno != EINTR) return Event::Ended;
    }
    if (waited[1].revents) return Event::Ended;
    if (waited[2].revents & (POLLERR | POLLHUP | POLLNVAL)) return Event::OutputClosed;
    Drain();
    Watch();
    return Event::Changed;
}
