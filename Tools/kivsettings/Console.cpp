#include "Console.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr std::size_t kFlushAt = std::size_t{1} << 16;

// 0, or the error.
int WriteAll(int descriptor, std::string_view data)
{
    while (!data.empty()) {
        const ssize_t count = write(descriptor, data.data(), data.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        data.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

} // namespace

Console::Console()
    : _diagnostics([this](const KivDiagnostic& said) {
          Say(said.Message().View());
          return true;
      })
{}

void Console::Secure()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // Opened the wrong way round, so that using it still fails.
        if (fcntl(descriptor, F_GETFD) >= 0) continue;
        if (open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY) < 0)
            _exit(static_cast<int>(ExitCode::Trouble));
    }
    std::signal(SIGPIPE, SIG_IGN);
}

void Console::Print(std::string_view data)
{
    _data += data;
    if (_data.size() >= kFlushAt) Flush();
}

bool Console::Flush()
{
    if (!_isLost) {
        if (const int error = WriteAll(STDOUT_FILENO, _data)) {
            _isLost = true;
            Say("the output cannot be written: " + std::generic_category().message(error));
        }
    }
    _data.clear();
    return !_isLost;
}

void Console::Say(std::string_view message)
{
    if (!_said.emplace(message).second) return;
    std::string line("kivsettings: ");
    (line += message) += '\n';
    WriteAll(STDERR_FILENO, line); // there is nobody left to tell when this fails
}

void Console::Say(std::string_view key, std::string_view message)
{
    Say(std::string(key).append(": ").append(message));
}

ExitCode Console::Finish(ExitCode code)
{
    return Flush() ? code : code | ExitCode::Trouble;
}
