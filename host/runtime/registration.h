// Reads a class record as its version lays it out, checks it, and adds the class.
// The record stays the plugin's: the host keeps its address and writes the offset of
// the class's data into `forSystemUse`.
#pragma once

#include <stdexcept>
#include <string>

#include "host/runtime/runtime.h"

namespace hostsim {

class RegistrationError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Throws RegistrationError, naming the class and the row, for a record the host cannot use.
const ClassInfo & RegisterClass(Runtime & rt, REALclassDefinition * record, const std::string & origin);

} // namespace hostsim
