#pragma once

#include <cerrno>

// Makes a call to the system, and once more whenever a signal has cut it short.
template <class Call> auto KivUninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}
