// Scope guards: each holds one reference (or one allocation) and gives it back when the
// scope ends, unless the holder hands it on with release().
#pragma once

#include <cstdlib>
#include <utility>

#include "plugin/host_services.h"

namespace zqt {

template <class Handle, void (*Unlock)(Handle)>
class HostReference {
public:
    explicit HostReference(Handle handle = nullptr) : handle_(handle) {}
    ~HostReference() { reset(); }
    HostReference(HostReference && other) noexcept : handle_(other.release()) {}
    HostReference & operator=(HostReference && other) noexcept
    {
        reset(other.release());
        return *this;
    }
    HostReference(const HostReference &) = delete;
    HostReference & operator=(const HostReference &) = delete;

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    // Hands the reference to the caller, who becomes responsible for it.
    Handle release() { return std::exchange(handle_, nullptr); }
    void reset(Handle handle = nullptr)
    {
        if (handle_)
            Unlock(handle_);
        handle_ = handle;
    }

private:
    Handle handle_;
};

using OwnedString = HostReference<REALstring, &REALUnlockString>;
using OwnedObject = HostReference<REALobject, &REALUnlockObject>;

// Memory from calloc, freed at the end of the scope.
class FreeLater {
public:
    explicit FreeLater(void * memory) : memory_(memory) {}
    ~FreeLater() { std::free(memory_); }
    FreeLater(const FreeLater &) = delete;
    FreeLater & operator=(const FreeLater &) = delete;

    template <class T>
    T * as() const
    {
        return static_cast<T *>(memory_);
    }

private:
    void * memory_;
};

} // namespace zqt
