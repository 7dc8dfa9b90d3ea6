#pragma once

#include <chrono>
#include <memory>
#include <vector>

class KivFileLock;

// The turn to save whatever has changed, in every repository of the process. A save waits for another program
// that is saving the same file; who must not wait asks for his turn first, goes about his business, and saves
// once it has come. All saves while this lives are done in that one turn. For the thread of the user
// interface.
class KivSettingTurn {
public:
    // Asks; waits for nobody.
    KivSettingTurn();
    ~KivSettingTurn();
    KivSettingTurn(const KivSettingTurn&) = delete;
    KivSettingTurn& operator=(const KivSettingTurn&) = delete;

    // Waits for it, at most until so long after it was asked for. Whether a save would not wait any more: it
    // is done, or refused where another program has taken too long.
    bool HasCome(std::chrono::milliseconds patience) const;

private:
    std::chrono::steady_clock::time_point _asked = std::chrono::steady_clock::now();
    std::vector<std::shared_ptr<KivFileLock>> _locks;
};
