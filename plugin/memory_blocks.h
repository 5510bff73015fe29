// Host memory blocks: making one of a given size, filling one with bytes, and viewing
// one's bytes.
#pragma once

#include <cstddef>

#include "plugin/owned.h"

namespace zqt {

struct MemoryBlockRequest {
    RBInteger wanted;          // bytes asked for
    REALobject block = nullptr; // receives the new block (+1) on success
};

// Makes a block of at least the wanted size; returns its actual size, or 0 without a block.
RBInteger REALNewMemoryBlockWork(MemoryBlockRequest & request);

// A new block (+1) holding a copy of `count` bytes. When the host cannot make it,
// raises OutOfMemoryException and returns null.
REALobject REALBuildMemoryblock(const void * bytes, RBInteger count);

// The bytes of a memory block, with a reference to it held while the view lives.
class rbData {
public:
    explicit rbData(REALobject block);
    rbData(const rbData &) = delete;
    rbData & operator=(const rbData &) = delete;

    unsigned char * bytes() const { return bytes_; }
    size_t size() const { return size_; }

private:
    OwnedObject block_;
    unsigned char * bytes_;
    size_t size_;
};

} // namespace zqt
