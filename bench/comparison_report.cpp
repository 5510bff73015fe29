#include "comparison_report.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <set>
#include <vector>

namespace bench {

const char * const ours = "ttmath";

std::string Name(const std::string & operation, unsigned bits, const std::string & implementation)
{
    return operation + "/" + std::to_string(bits) + "/" + implementation;
}

namespace {

// Keeps the fastest repetition of every benchmark while the console shows them all.
class CollectingReporter : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> best_ns;

    void ReportRuns(const std::vector<Run> & runs) override
    {
        for (const Run & run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred || run.iterations == 0)
                continue;
            const double ns = run.GetAdjustedCPUTime() * ToNanoseconds(run.time_unit);
            std::string name = run.run_name.function_name;
            auto it = best_ns.find(name);
            if (it == best_ns.end() || ns < it->second)
                best_ns[name] = ns;
        }
        ConsoleReporter::ReportRuns(runs);
    }

private:
    static double ToNanoseconds(benchmark::TimeUnit unit)
    {
        switch (unit) {
        case benchmark::kSecond: return 1e9;
        case benchmark::kMillisecond: return 1e6;
        case benchmark::kMicrosecond: return 1e3;
        default: return 1.0;
        }
    }
};

void PrintComparison(const std::map<std::string, double> & best_ns)
{
    // operation/bits -> implementation -> ns
    std::map<std::string, std::map<std::string, double>> table;
    std::set<std::string> implementations;
    for (const auto & entry : best_ns) {
        std::size_t slash = entry.first.rfind('/');
        if (slash == std::string::npos)
            continue;
        std::string implementation = entry.first.substr(slash + 1);
        table[entry.first.substr(0, slash)][implementation] = entry.second;
        if (implementation != ours)
            implementations.insert(implementation);
    }
    std::printf("\nComparison (fastest repetition, ns per call; ratio = their time / our time, "
                "above 1 means we are faster)\n");
    std::printf("%-28s %12s", "operation/bits", ours);
    for (const std::string & impl : implementations)
        std::printf(" %12s %8s", impl.c_str(), "ratio");
    std::printf("\n");
    for (const auto & row : table) {
        auto mine = row.second.find(ours);
        std::printf("%-28s %12.1f", row.first.c_str(), mine == row.second.end() ? 0.0 : mine->second);
        for (const std::string & impl : implementations) {
            auto theirs = row.second.find(impl);
            if (theirs == row.second.end() || mine == row.second.end())
                std::printf(" %12s %8s", "-", "-");
            else
                std::printf(" %12.1f %8.2f", theirs->second, theirs->second / mine->second);
        }
        std::printf("\n");
    }
}

} // namespace

int RunAndCompare(int argc, char ** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    PrintComparison(reporter.best_ns);
    benchmark::Shutdown();
    return 0;
}

} // namespace bench
