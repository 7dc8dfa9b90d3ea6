#pragma once

#include <cerrno>
#include <unistd.h>
#include <utility>

// An open file descriptor; closes itself.
class KivFileHandle {
public:
    KivFileHandle() = default;
    explicit KivFileHandle(int descriptor) : _descriptor(descriptor) {}
    KivFileHandle(KivFileHandle&& other) noexcept : _descriptor(std::exchange(other._descriptor, -1)) {}
    KivFileHandle& operator=(KivFileHandle&& other) noexcept
    {
        std::swap(_descriptor, other._descriptor);
        return *this;
    }
    ~KivFileHandle()
    {
        if (_descriptor >= 0) close(_descriptor);
    }

    bool IsOpen() const { return _descriptor >= 0; }
    int Get() const { return _descriptor; }

private:
    int _descriptor = -1;
};

// Makes a call to the system, and once more whenever a signal has cut it short.
template <class Call> auto KivUninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}
