// Basic types of the host's plugin interface, for 64-bit targets (LP64 and Win64).
// Every field type is fixed-width: `long` is 4 bytes on Win64 and never appears here.
#pragma once

#include <cstddef>
#include <cstdint>

static_assert(sizeof(void *) == 8, "the plugin interface is declared for 64-bit targets only");

typedef int64_t RBInteger;
typedef uint64_t RBUInteger;
typedef int64_t RBInt64;
typedef uint64_t RBUInt64;
typedef int8_t RBBoolean;
typedef uint32_t RBColor;
// Currency: a signed count of ten-thousandths (1.5 is 15000).
typedef RBInt64 REALcurrency;

// Opaque handles. Only the host knows what is behind them.
struct REALstringStruct;
struct REALobjectStruct;
struct REALclassRefStruct;
struct REALarrayStruct;
struct RuntimeText;

// A NULL string stands for the empty string; a NULL object is Nil.
typedef REALstringStruct *REALstring;
typedef REALobjectStruct *REALobject;
typedef REALclassRefStruct *REALclassRef;
typedef REALarrayStruct *REALarray;
typedef REALobject REALmemoryBlock;
typedef const RuntimeText *REALtext;

// A function pointer as records store it; the host casts it to the real calling shape.
typedef void (*REALproc)(void);

// The resolver handed to REALPluginMain: an entry name to an entry address, or NULL.
typedef void *(*REALresolver)(const char *entryName);

static_assert(sizeof(RBBoolean) == 1 && sizeof(RBInteger) == 8 && sizeof(REALcurrency) == 8);
static_assert(sizeof(RBColor) == 4 && sizeof(REALstring) == 8 && sizeof(REALproc) == 8);
