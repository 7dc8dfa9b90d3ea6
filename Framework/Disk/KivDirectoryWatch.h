#pragma once

#include "Disk/KivDirectory.h"

#include <functional>

// Who shows whether a directory is there, and has to be told when that is known at last. Everything here is
// for the thread of the user interface.
class KivDirectoryWatch {
public:
    // changed is called by Drain; it may destroy this watch, or any other.
    explicit KivDirectoryWatch(std::function<void()> changed);
    ~KivDirectoryWatch();
    KivDirectoryWatch(const KivDirectoryWatch&) = delete;
    KivDirectoryWatch& operator=(const KivDirectoryWatch&) = delete;

    // Asks for a directory (see KivAskDirectory), instead of the one before.
    void Ask(const KivUnicodeString& path);
    // Asks for none any longer; nothing is missing then.
    void Forget();
    KivDirectoryState State() const { return _answer.state; }

    // For a host, between events and again and again while it answers that something is awaited: tells each
    // watch whose answer has come.
    static bool Drain();

private:
    KivUnicodeString _path;
    KivDirectoryAnswer _answer{.state = KivDirectoryState::There, .isAwaited = false};
    std::function<void()> _changed;
};
