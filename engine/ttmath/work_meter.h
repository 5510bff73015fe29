// Counters of the work the elementary functions do, per thread: how many rounds of
// the rounding test a call needed, the widest working precision it used and the
// longest series it summed. They cost a few stores per call and let tests assert that
// no argument makes a function work long: every quantity here has a fixed bound that
// depends only on the number type.
#ifndef TTMATH_WORK_METER_H
#define TTMATH_WORK_METER_H

#include <cstddef>

namespace ttmath {
namespace wide {

struct WorkMeter {
    std::size_t rounds = 0;          // evaluations handed to the rounding test
    std::size_t widest = 0;          // the most words of working precision
    std::size_t longest_series = 0;  // the most terms of one series or iteration
    std::size_t reduction_words = 0; // the most words of 2/pi one argument reduction read
    std::size_t undecided = 0;       // calls whose rounding the last round still could not settle

    void Reset() { *this = WorkMeter(); }

    void Precision(std::size_t words)
    {
        if (words > widest)
            widest = words;
    }

    void Series(std::size_t terms)
    {
        if (terms > longest_series)
            longest_series = terms;
    }

    void Reduction(std::size_t words)
    {
        if (words > reduction_words)
            reduction_words = words;
    }
};

inline WorkMeter & Meter()
{
    static thread_local WorkMeter meter;
    return meter;
}

} // namespace wide
} // namespace ttmath

#endif
