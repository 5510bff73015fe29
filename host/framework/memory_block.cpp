// MemoryBlock: a sized, zero-filled byte buffer. Its constructor is also what plugins
// find with REALLoadObjectMethod as "Constructor(bytes as Integer)".
#include <cstdlib>
#include <cstring>

#include "host/framework/framework.h"
#include "host/runtime/registration.h"
#include "sdk/flags.h"

namespace hostsim {

const char * const kMemoryBlockClassName = "MemoryBlock";

namespace {

const RBInteger kByteMask = 0xFF;

struct BlockData {
    unsigned char * bytes;
    RBInteger size;
};

BlockData & DataOf(REALobject block)
{
    Runtime * rt = Runtime::Current();
    return *static_cast<BlockData *>(Runtime::ClassData(block, rt->Framework(kMemoryBlockClassName)));
}

// Changes the size, keeping the bytes that fit and zero-filling new ones.
void Resize(REALobject self, RBInteger size)
{
    Runtime * rt = Runtime::Current();
    if (size < 0) {
        RaiseHostException(*rt, kOutOfBoundsExceptionClassName,
                           "A MemoryBlock cannot have a negative size (" + std::to_string(size) + ").");
        return;
    }
    BlockData & d = DataOf(self);
    auto * bytes = static_cast<unsigned char *>(std::calloc(static_cast<size_t>(size) + 1, 1));
    if (!bytes) {
        RaiseHostException(*rt, "OutOfMemoryException",
                           "Cannot allocate a MemoryBlock of " + std::to_string(size) + " bytes.");
        return;
    }
    if (d.bytes)
        std::memcpy(bytes, d.bytes, static_cast<size_t>(d.size < size ? d.size : size));
    std::free(d.bytes);
    d.bytes = bytes;
    d.size = size;
}

bool InRange(REALobject self, RBInteger offset)
{
    if (offset >= 0 && offset < DataOf(self).size)
        return true;
    RaiseHostException(*Runtime::Current(), kOutOfBoundsExceptionClassName,
                       "The offset " + std::to_string(offset) + " is outside the MemoryBlock of " +
                       std::to_string(DataOf(self).size) + " bytes.");
    return false;
}

void Construct(REALobject self, RBInteger size)
{
    Resize(self, size);
}

RBInteger GetByte(REALobject self, RBInteger offset)
{
    return InRange(self, offset) ? DataOf(self).bytes[offset] : 0;
}

void SetByte(REALobject self, RBInteger offset, RBInteger value)
{
    if (InRange(self, offset))
        DataOf(self).bytes[offset] = static_cast<unsigned char>(value & kByteMask);
}

RBInteger GetSize(REALobject self, RBInteger)
{
    return DataOf(self).size;
}

void SetSize(REALobject self, RBInteger, RBInteger size)
{
    Resize(self, size);
}

void Finalize(REALobject self)
{
    BlockData & d = DataOf(self);
    std::free(d.bytes);
    d.bytes = nullptr;
    d.size = 0;
}

REALmethodDefinition gMethods[] = {
    {reinterpret_cast<REALproc>(&Construct), nullptr, "Constructor(bytes As Integer)", REALTargetAll, 0, nullptr},
    {reinterpret_cast<REALproc>(&GetByte), reinterpret_cast<REALproc>(&SetByte), "Byte(offset As Integer) As Integer",
     REALTargetAll, 0, nullptr},
};

REALproperty gProperties[] = {
    {nullptr, "Size", "Integer", REALTargetAll, reinterpret_cast<REALproc>(&GetSize),
     reinterpret_cast<REALproc>(&SetSize), 0, nullptr, 0, nullptr, 0, nullptr},
};

REALclassDefinition gMemoryBlock = [] {
    REALclassDefinition d{};
    d.version = kControlVersionNewest;
    d.name = kMemoryBlockClassName;
    d.dataSize = sizeof(BlockData);
    d.destructor = reinterpret_cast<REALproc>(&Finalize);
    d.methods = gMethods;
    d.methodCount = sizeof gMethods / sizeof gMethods[0];
    d.properties = gProperties;
    d.propertyCount = sizeof gProperties / sizeof gProperties[0];
    d.mFlags = REALTargetAll;
    return d;
}();

} // namespace

void RegisterMemoryBlockClass(Runtime & rt)
{
    RegisterClass(rt, &gMemoryBlock, kFrameworkOrigin);
}

bool IsMemoryBlock(Runtime & rt, REALobject o)
{
    return o && o->cls->IsA(&rt.Framework(kMemoryBlockClassName));
}

void * MemoryBlockBytes(REALobject block)
{
    return DataOf(block).bytes;
}

RBInteger MemoryBlockSize(REALobject block)
{
    return DataOf(block).size;
}

} // namespace hostsim
