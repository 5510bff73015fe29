// What differs between systems: opening a shared library and finding a symbol in it
// (with the system's own words when that fails), and whether input comes from a terminal.
// posix.cpp and windows.cpp implement it.
#pragma once

#include <string>

namespace hostsim {

class SharedLibrary {
public:
    SharedLibrary() = default;
    SharedLibrary(const SharedLibrary &) = delete;
    SharedLibrary & operator=(const SharedLibrary &) = delete;
    ~SharedLibrary() { Close(); }

    // False with `error` set when the file cannot be loaded as a library.
    bool Open(const std::string & path, std::string & error);
    void * Symbol(const char * name) const;
    void Close();
    bool IsOpen() const { return handle_ != nullptr; }

private:
    void * handle_ = nullptr;
};

bool StandardInputIsTerminal();

} // namespace hostsim
