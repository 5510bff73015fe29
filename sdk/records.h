// Registration records a plugin hands to the host, laid out as the host reads them
// on 64-bit targets (the same offsets on LP64 and Win64). The host keeps each class
// record by address for the life of the process and writes `forSystemUse` into it,
// so records must be static and writable.
#pragma once

#include "sdk/rb_types.h"

struct REALattribute {
    const char *mName;
    const char *mValue; // may be empty
};

struct REALmethodDefinition {
    REALproc function;
    REALproc setterFunction; // called for `obj.Name(args) = value`, else NULL
    const char *declaration; // e.g. "Name(a As Integer) As String"
    uint32_t mFlags;
    size_t attributeCount;   // since version 10; count before the list
    REALattribute *attributes;
};

struct REALproperty {
    const char *group;
    const char *name;
    const char *type;       // host type name, e.g. "Integer" or a class name
    uint32_t flags;
    REALproc getter;        // a handler, REALstandardGetter, or NULL (write-only)
    REALproc setter;        // a handler, REALstandardSetter, or NULL (read-only)
    int32_t param;          // passed to accessors; the field offset for standard markers
    REALproc editor;
    size_t enumCount;
    const char **enumEntries;
    size_t attributeCount;  // since version 10
    REALattribute *attributes;
};

struct REALevent {
    const char *declaration;
    RBInteger forSystemUse;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALeventInstance {
    const char *name;
    REALproc implementation;
};

struct REALconstant {
    const char *declaration; // e.g. "kName As Integer = 5"
    void *reserved1;
    uint32_t mFlags;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALdelegate {
    const char *declaration;
    uint32_t mFlags;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALenum {
    const char *name;
    const char *type; // empty or NULL: Integer
    uint32_t mFlags;
    const char **fields;
    size_t numFields;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALstructure {
    const char *name;
    uint32_t mFlags;
    const char **fields;
    size_t numFields;
    size_t attributeCount;
    REALattribute *attributes;
};

struct REALclassDefinition {
    uint32_t version;
    const char *name;
    const char *superName;
    size_t dataSize;
    RBInteger forSystemUse;  // written by the host: offset of this class's data in an object
    REALproc constructor;    // initializer: void (REALobject)
    REALproc destructor;     // finalizer: void (REALobject)
    REALproperty *properties;
    size_t propertyCount;
    REALmethodDefinition *methods;
    size_t methodCount;
    REALevent *events;
    size_t eventCount;
    REALeventInstance *eventInstances;
    size_t eventInstanceCount;
    const char *interfaces;
    REALattribute *attributes; // list before its count, unlike the rows
    size_t attributeCount;
    REALconstant *constants;
    size_t constantCount;
    uint32_t mFlags;
    REALproperty *sharedProperties;
    size_t sharedPropertyCount;
    REALmethodDefinition *sharedMethods;
    size_t sharedMethodCount;
    REALdelegate *delegates;   // since version 11
    size_t delegateCount;
    REALenum *enums;           // since version 11
    size_t enumCount;
};

struct REALinterfaceDefinition {
    uint32_t version;
    const char *name;
    REALmethodDefinition *methods;
    size_t methodCount;
    REALattribute *attributes;
    size_t attributeCount;
};

struct REALmoduleDefinition {
    uint32_t version;
    const char *name;
    REALmethodDefinition *methods;
    size_t methodCount;
    REALconstant *constants;
    size_t constantCount;
    REALproperty *properties;
    size_t propertyCount;
    REALstructure *structures;
    size_t structureCount;
    REALenum *enums;
    size_t enumCount;
    REALattribute *attributes;
    size_t attributeCount;
    REALdelegate *delegates;                // since version 11
    size_t delegateCount;
    REALclassDefinition **classes;          // since version 13
    size_t classesCount;
    REALinterfaceDefinition **interfaces;
    size_t interfaceCount;
    REALmoduleDefinition **modules;
    size_t moduleCount;
    void **controls;
    size_t controlCount;
    uint32_t flags;                         // since version 14
    void **mobileControls;                  // since version 15
    size_t mobileControlCount;
};

// Filled by PluginGetStringData, disposed exactly once by PluginDisposeStringData.
struct REALstringData {
    const void *data;
    size_t length;       // bytes, no terminator counted
    uint32_t encoding;
    const void *private1;
    uint32_t private2;
};

struct REALtextData {
    const void *data;
    size_t size;
    const char *encoding;
};

// Sizes of the rows and records of older layouts: a version-9 row ends before its
// attribute fields, a version 9 or 10 class record ends after `sharedMethodCount`.
enum : size_t {
    kMethodRowSizeV9 = 32,
    kPropertyRowSizeV9 = 80,
    kClassRecordSizeV9 = 200,
};

#define SDK_CHECK_FIELD(type, field, offset) \
    static_assert(offsetof(type, field) == (offset), #type "." #field " must sit at " #offset)

static_assert(sizeof(REALattribute) == 16);
SDK_CHECK_FIELD(REALattribute, mValue, 8);

static_assert(sizeof(REALmethodDefinition) == 48);
SDK_CHECK_FIELD(REALmethodDefinition, setterFunction, 8);
SDK_CHECK_FIELD(REALmethodDefinition, declaration, 16);
SDK_CHECK_FIELD(REALmethodDefinition, mFlags, 24);
SDK_CHECK_FIELD(REALmethodDefinition, attributeCount, 32);
SDK_CHECK_FIELD(REALmethodDefinition, attributes, 40);
static_assert(offsetof(REALmethodDefinition, attributeCount) == kMethodRowSizeV9);

static_assert(sizeof(REALproperty) == 96);
SDK_CHECK_FIELD(REALproperty, name, 8);
SDK_CHECK_FIELD(REALproperty, type, 16);
SDK_CHECK_FIELD(REALproperty, flags, 24);
SDK_CHECK_FIELD(REALproperty, getter, 32);
SDK_CHECK_FIELD(REALproperty, setter, 40);
SDK_CHECK_FIELD(REALproperty, param, 48);
SDK_CHECK_FIELD(REALproperty, editor, 56);
SDK_CHECK_FIELD(REALproperty, enumCount, 64);
SDK_CHECK_FIELD(REALproperty, enumEntries, 72);
SDK_CHECK_FIELD(REALproperty, attributeCount, 80);
SDK_CHECK_FIELD(REALproperty, attributes, 88);
static_assert(offsetof(REALproperty, attributeCount) == kPropertyRowSizeV9);

static_assert(sizeof(REALevent) == 32);
SDK_CHECK_FIELD(REALevent, forSystemUse, 8);
SDK_CHECK_FIELD(REALevent, attributeCount, 16);
static_assert(sizeof(REALeventInstance) == 16);
static_assert(sizeof(REALconstant) == 40);
SDK_CHECK_FIELD(REALconstant, mFlags, 16);
SDK_CHECK_FIELD(REALconstant, attributes, 32);
static_assert(sizeof(REALdelegate) == 32);
SDK_CHECK_FIELD(REALdelegate, attributeCount, 16);
static_assert(sizeof(REALenum) == 56);
SDK_CHECK_FIELD(REALenum, fields, 24);
SDK_CHECK_FIELD(REALenum, attributes, 48);
static_assert(sizeof(REALstructure) == 48);
SDK_CHECK_FIELD(REALstructure, numFields, 24);
static_assert(sizeof(REALinterfaceDefinition) == 48);
SDK_CHECK_FIELD(REALinterfaceDefinition, attributeCount, 40);

static_assert(sizeof(REALclassDefinition) == 232);
SDK_CHECK_FIELD(REALclassDefinition, name, 8);
SDK_CHECK_FIELD(REALclassDefinition, superName, 16);
SDK_CHECK_FIELD(REALclassDefinition, dataSize, 24);
SDK_CHECK_FIELD(REALclassDefinition, forSystemUse, 32);
SDK_CHECK_FIELD(REALclassDefinition, constructor, 40);
SDK_CHECK_FIELD(REALclassDefinition, destructor, 48);
SDK_CHECK_FIELD(REALclassDefinition, properties, 56);
SDK_CHECK_FIELD(REALclassDefinition, propertyCount, 64);
SDK_CHECK_FIELD(REALclassDefinition, methods, 72);
SDK_CHECK_FIELD(REALclassDefinition, methodCount, 80);
SDK_CHECK_FIELD(REALclassDefinition, events, 88);
SDK_CHECK_FIELD(REALclassDefinition, eventCount, 96);
SDK_CHECK_FIELD(REALclassDefinition, eventInstances, 104);
SDK_CHECK_FIELD(REALclassDefinition, eventInstanceCount, 112);
SDK_CHECK_FIELD(REALclassDefinition, interfaces, 120);
SDK_CHECK_FIELD(REALclassDefinition, attributes, 128);
SDK_CHECK_FIELD(REALclassDefinition, attributeCount, 136);
SDK_CHECK_FIELD(REALclassDefinition, constants, 144);
SDK_CHECK_FIELD(REALclassDefinition, constantCount, 152);
SDK_CHECK_FIELD(REALclassDefinition, mFlags, 160);
SDK_CHECK_FIELD(REALclassDefinition, sharedProperties, 168);
SDK_CHECK_FIELD(REALclassDefinition, sharedPropertyCount, 176);
SDK_CHECK_FIELD(REALclassDefinition, sharedMethods, 184);
SDK_CHECK_FIELD(REALclassDefinition, sharedMethodCount, 192);
SDK_CHECK_FIELD(REALclassDefinition, delegates, 200);
SDK_CHECK_FIELD(REALclassDefinition, delegateCount, 208);
SDK_CHECK_FIELD(REALclassDefinition, enums, 216);
SDK_CHECK_FIELD(REALclassDefinition, enumCount, 224);
static_assert(offsetof(REALclassDefinition, delegates) == kClassRecordSizeV9);

static_assert(sizeof(REALmoduleDefinition) == 216);
SDK_CHECK_FIELD(REALmoduleDefinition, attributeCount, 104);
SDK_CHECK_FIELD(REALmoduleDefinition, delegates, 112);
SDK_CHECK_FIELD(REALmoduleDefinition, classes, 128);
SDK_CHECK_FIELD(REALmoduleDefinition, controlCount, 184);
SDK_CHECK_FIELD(REALmoduleDefinition, flags, 192);
SDK_CHECK_FIELD(REALmoduleDefinition, mobileControls, 200);

static_assert(sizeof(REALstringData) == 40);
SDK_CHECK_FIELD(REALstringData, length, 8);
SDK_CHECK_FIELD(REALstringData, encoding, 16);
SDK_CHECK_FIELD(REALstringData, private1, 24);
SDK_CHECK_FIELD(REALstringData, private2, 32);
static_assert(sizeof(REALtextData) == 24);

#undef SDK_CHECK_FIELD
