#include <io.h>
#include <stdio.h>
#include <windows.h>

#include "host/platform/platform.h"

namespace hostsim {

bool SharedLibrary::Open(const std::string & path, std::string & error)
{
    Close();
    handle_ = reinterpret_cast<void *>(LoadLibraryA(path.c_str()));
    if (!handle_) {
        char text[512] = {};
        FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, GetLastError(), 0,
                       text, sizeof text, nullptr);
        error = text[0] ? text : "the library could not be loaded";
        while (!error.empty() && (error.back() == '\n' || error.back() == '\r'))
            error.pop_back();
        return false;
    }
    return true;
}

void * SharedLibrary::Symbol(const char * name) const
{
    return handle_ ? reinterpret_cast<void *>(GetProcAddress(static_cast<HMODULE>(handle_), name)) : nullptr;
}

void SharedLibrary::Close()
{
    if (handle_)
        FreeLibrary(static_cast<HMODULE>(handle_));
    handle_ = nullptr;
}

bool StandardInputIsTerminal()
{
    return _isatty(_fileno(stdin)) != 0;
}

} // namespace hostsim
