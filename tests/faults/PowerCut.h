#pragma once

#include "FaultPoints.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

// What the disk may hold when the power fails. From its construction on it writes down what is done below a
// directory; then it makes every state that a file system which keeps its own order may be in: of each
// directory, the changes of names up to any one since its last flush; of each file, what was flushed, or what
// was written since, whole, cut in the middle, or as zeros.
class PowerCut {
public:
    // Files by absolute path, and what they hold; directories end in a slash.
    using Disk = std::map<std::string, std::string>;

    explicit PowerCut(const std::filesystem::path& root);
    ~PowerCut();
    PowerCut(const PowerCut&) = delete;
    PowerCut& operator=(const PowerCut&) = delete;

    // Every state, of a power cut at any moment, or only after all that was done.
    std::vector<Disk> States(bool isOver) const;

    // Makes the directory hold nothing but a state.
    void Put(const Disk& disk) const;

private:
    std::string _root;
    Disk _before;
};
