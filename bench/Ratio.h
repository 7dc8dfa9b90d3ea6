#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

// Measurements are pairs: what we do and the barest way to do the like, run in turns in one process. A
// machine's speed and its noise touch both; the ratio stays.
namespace KivRatio {

using Measured = std::function<void(benchmark::State&)>;

// Declares a pair; aim is the ratio that we want to stay within.
void Add(const std::string& name, double aim, Measured ours, Measured bare);

// Runs all pairs and prints a table of medians and ratios. --smoke runs each just long enough to see that it
// works.
int Run(int argc, char** argv);

} // namespace KivRatio
