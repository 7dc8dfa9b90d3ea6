#include "Ratio.h"

#include <cstdio>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace {

struct Pair {
    std::string name;
    double aim;
};

std::vector<Pair>& Pairs()
{
    static std::vector<Pair> pairs;
    return pairs;
}

// Keeps the median of each benchmark and prints nothing meanwhile.
class Medians : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred) _errors[run.run_name.function_name] = run.error_message;
            if (run.aggregate_name == "median")
                _nanoseconds[run.run_name.function_name] = run.GetAdjustedRealTime();
        }
    }
    double Of(const std::string& name) const
    {
        const auto found = _nanoseconds.find(name);
        return found == _nanoseconds.end() ? 0.0 : found->second;
    }
    const std::map<std::string, std::string>& Errors() const { return _errors; }

private:
    std::map<std::string, double> _nanoseconds;
    std::map<std::string, std::string> _errors;
};

} // namespace

void KivRatio::Add(const std::string& name, double aim, Measured ours, Measured bare)
{
    Pairs().push_back({name, aim});
    benchmark::RegisterBenchmark((name + ": ours").c_str(), std::move(ours))->UseRealTime();
    benchmark::RegisterBenchmark((name + ": bare").c_str(), std::move(bare))->UseRealTime();
}

int KivRatio::Run(int argc, char** argv)
{
    std::vector<std::string> arguments{argv[0], "--benchmark_repetitions=15", "--benchmark_min_time=0.02",
                                       "--benchmark_enable_random_interleaving=true"};
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--smoke") {
            arguments.insert(arguments.end(), {"--benchmark_repetitions=2", "--benchmark_min_time=0.001"});
        } else {
            arguments.emplace_back(argv[i]);
        }
    }
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) return 2;

    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    std::printf("%-52s %12s %12s %7s %7s\n", "median of each", "ours, µs", "bare, µs", "ratio", "aim");
    for (const Pair& pair : Pairs()) {
        const double ours = medians.Of(pair.name + ": ours"), bare = medians.Of(pair.name + ": bare");
        if (ours <= 0.0 || bare <= 0.0) continue; // filtered out
        std::printf("%-52s %12.3f %12.3f %7.2f %7.2f%s\n", pair.name.c_str(), ours / 1000.0, bare / 1000.0,
                    ours / bare, pair.aim, ours / bare > pair.aim ? "  over" : "");
    }
    for (const auto& [name, error] : medians.Errors())
        std::fprintf(stderr, "%s: %s\n", name.c_str(), error.c_str());
    return medians.Errors().empty() ? 0 : 1;
}
