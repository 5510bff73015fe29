// Calling shapes of the host's entries, as a plugin finds them through the resolver
// by the names given in the comments. A plugin casts the resolver's answer to these
// types; the simulated host implements each entry with exactly this shape.
#pragma once

#include "sdk/records.h"

// The plugin's one export, declared `extern "C" REAL_PLUGIN_EXPORT void REALPluginMain(REALresolver)`.
extern "C" typedef void (*REALPluginMainProc)(REALresolver resolver);
#define REAL_PLUGIN_MAIN_NAME "REALPluginMain"
#if defined(_WIN32)
#define REAL_PLUGIN_EXPORT __declspec(dllexport)
#else
#define REAL_PLUGIN_EXPORT __attribute__((visibility("default")))
#endif

// "RegisterPluginVersion", "REALGetRBVersion", "REALinRuntime"
typedef void (*RegisterPluginVersionProc)(int version);
typedef double (*REALGetRBVersionProc)(void);
typedef RBBoolean (*REALinRuntimeProc)(void);

// "PluginRegisterClass". Declared void by the host; the simulated host also answers 1 for
// a class it accepted and 0 for one it refused, in a full register.
typedef void (*PluginRegisterClassProc)(REALclassDefinition *definition);

// Strings: "REALBuildString", "REALBuildStringWithEncoding", "StringGetCString",
// "PluginGetStringData", "PluginDisposeStringData", "REALLockString",
// "REALUnlockString", "RuntimeAddString", "REALGetStringEncoding", "REALConvertString",
// "REALSetStringEncoding", "RuntimeStringCompare", "REALGetSystemTextEncoding"
typedef REALstring (*REALBuildStringProc)(const char *bytes, int byteCount);
typedef REALstring (*REALBuildStringWithEncodingProc)(const char *bytes, int byteCount, uint32_t encoding);
typedef void *(*StringGetCStringProc)(REALstring s);
typedef RBBoolean (*PluginGetStringDataProc)(REALstring s, uint32_t encoding, REALstringData *out);
typedef void (*PluginDisposeStringDataProc)(REALstringData *data);
typedef void (*REALLockStringProc)(REALstring s);
typedef void (*REALUnlockStringProc)(REALstring s);
typedef REALstring (*RuntimeAddStringProc)(REALstring a, REALstring b);
typedef uint32_t (*REALGetStringEncodingProc)(REALstring s);
typedef REALstring (*REALConvertStringProc)(REALstring s, uint32_t encoding);
typedef void (*REALSetStringEncodingProc)(REALstring s, uint32_t encoding);
typedef RBInteger (*RuntimeStringCompareProc)(REALstring a, REALstring b);
typedef uint32_t (*REALGetSystemTextEncodingProc)(void);

// Objects and classes: "REALLockObject", "REALUnlockObject", "pluginObjectType",
// "RuntimeObjectIsa", "PluginNewInstance", "CreateInstance", "PluginNewInstanceOfClass",
// "PluginGetPluginData", "REALLoadGlobalMethod", "REALLoadObjectMethod",
// "PluginLoadSharedMethod"
typedef void (*REALLockObjectProc)(REALobject o);
typedef void (*REALUnlockObjectProc)(REALobject o);
typedef REALclassRef (*pluginObjectTypeProc)(const char *className);
typedef RBBoolean (*RuntimeObjectIsaProc)(REALobject o, REALclassRef c);
typedef REALobject (*PluginNewInstanceProc)(const char *className);
typedef REALobject (*CreateInstanceProc)(REALclassRef c);
typedef REALobject (*PluginNewInstanceOfClassProc)(REALclassDefinition *definition);
typedef void *(*PluginGetPluginDataProc)(REALobject o, REALclassRef c);
typedef void *(*REALLoadGlobalMethodProc)(const char *module, const char *prototype);
typedef void *(*REALLoadObjectMethodProc)(REALobject o, const char *prototype);
typedef void *(*PluginLoadSharedMethodProc)(REALclassRef c, const char *prototype);

// Exceptions: "RuntimeRaiseException", "PluginCallFunctionWithExceptionHandler"
typedef void (*RuntimeRaiseExceptionProc)(REALobject exception);
typedef REALobject (*PluginCallFunctionWithExceptionHandlerProc)(void (*callback)(void *), void *userData);

// Properties by name. The host answers 0 or 1 in a full register, so reading the
// result as one byte (as below) or as a whole word both work.
typedef RBBoolean (*REALGetPropValueIntProc)(REALobject o, const char *name, int32_t *out);
typedef RBBoolean (*REALGetPropValueStringProc)(REALobject o, const char *name, REALstring *out);
typedef RBBoolean (*REALGetPropValueDoubleProc)(REALobject o, const char *name, double *out);
typedef RBBoolean (*REALGetPropValueInt64Proc)(REALobject o, const char *name, RBInt64 *out);
typedef RBBoolean (*REALGetPropValueUInt64Proc)(REALobject o, const char *name, RBUInt64 *out);
typedef RBBoolean (*REALGetPropValueUInt32Proc)(REALobject o, const char *name, uint32_t *out);
typedef RBBoolean (*REALGetPropValueSingleProc)(REALobject o, const char *name, float *out);
typedef RBBoolean (*REALGetPropValueCurrencyProc)(REALobject o, const char *name, REALcurrency *out);
typedef RBBoolean (*REALGetPropValueIntegerProc)(REALobject o, const char *name, RBInteger *out);
typedef RBBoolean (*REALGetPropValueBooleanProc)(REALobject o, const char *name, RBBoolean *out);
typedef RBBoolean (*REALGetPropValueObjectProc)(REALobject o, const char *name, REALobject *out);
typedef RBBoolean (*REALSetPropValueStringProc)(REALobject o, const char *name, REALstring value);
typedef RBBoolean (*REALSetPropValueIntegerProc)(REALobject o, const char *name, RBInteger value);
typedef RBBoolean (*REALSetPropValueInt32Proc)(REALobject o, const char *name, int32_t value);
typedef RBBoolean (*REALSetPropValueDoubleProc)(REALobject o, const char *name, double value);
typedef RBBoolean (*REALSetPropValueBooleanProc)(REALobject o, const char *name, RBBoolean value);
typedef RBBoolean (*REALSetPropValueObjectProc)(REALobject o, const char *name, REALobject value);

// Variants: "StringToVariant", "Int32ToVariant", "Int64ToVariant", "UInt64ToVariant",
// "IntegerToVariant", "UInt32ToVariant", "DoubleToVariant", "SingleToVariant",
// "CurrencyToVariant", "BooleanToVariant", "ColorToVariant"; each result is +1.
typedef REALobject (*StringToVariantProc)(REALstring s);
typedef REALobject (*Int32ToVariantProc)(int32_t v);
typedef REALobject (*Int64ToVariantProc)(RBInt64 v);
typedef REALobject (*UInt64ToVariantProc)(RBUInt64 v);
typedef REALobject (*IntegerToVariantProc)(RBInteger v);
typedef REALobject (*UInt32ToVariantProc)(uint32_t v);
typedef REALobject (*DoubleToVariantProc)(double v);
typedef REALobject (*SingleToVariantProc)(float v);
typedef REALobject (*CurrencyToVariantProc)(REALcurrency v);
typedef REALobject (*BooleanToVariantProc)(RBBoolean v);
typedef REALobject (*ColorToVariantProc)(RBColor v);

// Reading a variant as one type: "VariantToInt32", "VariantToUInt32", "VariantToInt64",
// "VariantToUInt64", "VariantToSingle", "VariantToDouble", "VariantToString" (+1). Not
// every host has them; the variant's value properties say the same.
typedef int32_t (*VariantToInt32Proc)(REALobject variant);
typedef uint32_t (*VariantToUInt32Proc)(REALobject variant);
typedef RBInt64 (*VariantToInt64Proc)(REALobject variant);
typedef RBUInt64 (*VariantToUInt64Proc)(REALobject variant);
typedef float (*VariantToSingleProc)(REALobject variant);
typedef double (*VariantToDoubleProc)(REALobject variant);
typedef REALstring (*VariantToStringProc)(REALobject variant);

// Memory blocks: "memoryBlockGetPtr", "memoryBlockGetSize", "newMemoryBlock"
typedef void *(*memoryBlockGetPtrProc)(REALobject block);
typedef RBInteger (*memoryBlockGetSizeProc)(REALobject block);
typedef REALobject (*newMemoryBlockProc)(int bytes);

// Framework functions found with REALLoadGlobalMethod by declaration text.
typedef RBInteger (*LenBProc)(REALstring s);                // "LenB( s as string ) as integer"
typedef RBInteger (*VarTypeProc)(REALobject variant);       // "VarType(value As Variant) As Integer"
// Found with REALLoadObjectMethod on a MemoryBlock: "Constructor(bytes as Integer)".
typedef void (*MemoryBlockConstructorProc)(REALobject block, RBInteger bytes);
