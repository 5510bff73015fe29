// What running one vector line gives: pass or fail, an optional category counted per
// file (for rules that distinguish kinds of passes), and a description for failures.
#ifndef GOLDEN_OUTCOME_H
#define GOLDEN_OUTCOME_H

#include <map>
#include <string>
#include <vector>

#include "vector_line.h"

namespace golden {

typedef std::vector<std::string> Outputs;

struct Outcome {
    bool pass = true;
    std::string category; // counted per file when not empty
    std::string detail;   // why a line failed
};

typedef Outcome (*Handler)(const Line &);
typedef std::map<std::string, Handler> HandlerMap;

inline std::string JoinFields(const Outputs & fields)
{
    std::string s;
    for (const std::string & f : fields)
        s += (s.empty() ? "" : "\t") + f;
    return s;
}

// Passes when every output field equals the expected one.
inline Outcome CompareOutputs(const Line & l, const Outputs & got)
{
    Outcome o;
    if (got != l.outputs) {
        o.pass = false;
        o.detail = "expected " + JoinFields(l.outputs) + "\n    got      " + JoinFields(got);
    }
    return o;
}

} // namespace golden

#endif
