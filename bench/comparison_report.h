// Side-by-side comparisons in one benchmark run. Benchmarks are named
// "<operation>/<bits>/<implementation>"; after the run, every operation and width is
// printed with each implementation's time and its ratio to ours ("ttmath").
#ifndef BENCH_COMPARISON_REPORT_H
#define BENCH_COMPARISON_REPORT_H

#include <string>

namespace bench {

extern const char * const ours;

// The benchmark name for one implementation of an operation at a width.
std::string Name(const std::string & operation, unsigned bits, const std::string & implementation);

// Runs every registered benchmark (command-line options as Google Benchmark's) and
// prints the comparison table. Returns the process exit status.
int RunAndCompare(int argc, char ** argv);

} // namespace bench

#endif
