#include <dlfcn.h>
#include <unistd.h>

#include "host/platform/platform.h"

namespace hostsim {

bool SharedLibrary::Open(const std::string & path, std::string & error)
{
    Close();
    handle_ = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle_) {
        const char * reason = dlerror();
        error = reason ? reason : "the library could not be loaded";
        return false;
    }
    return true;
}

void * SharedLibrary::Symbol(const char * name) const
{
    return handle_ ? dlsym(handle_, name) : nullptr;
}

void SharedLibrary::Close()
{
    if (handle_)
        dlclose(handle_);
    handle_ = nullptr;
}

bool StandardInputIsTerminal()
{
    return isatty(STDIN_FILENO) != 0;
}

} // namespace hostsim
