#include "host/runtime/registration.h"

#include <cstring>
#include <memory>

#include "host/framework/framework.h"
#include "host/lang/lexer.h"
#include "sdk/flags.h"

namespace hostsim {

namespace {

// Limits beyond which a record is taken as garbage rather than as a class.
const size_t kMaxDataSize = size_t(1) << 20;
const size_t kMaxRows = size_t(1) << 14;
const size_t kMaxAttributes = 64;
const size_t kDataAlignment = 16;
const uint32_t kPluginPrivateFlag = 0x40000;

size_t RoundUp(size_t n, size_t to)
{
    return (n + to - 1) / to * to;
}

[[noreturn]] void Reject(const std::string & text)
{
    throw RegistrationError(text);
}

std::string Text(const char * s)
{
    return s ? s : "";
}

// Copies row `i` of a list whose rows are `stride` bytes long into a full-size row;
// fields an older layout lacks stay zero.
template <class Row>
Row ReadRow(const void * list, size_t i, size_t stride)
{
    Row row;
    std::memset(&row, 0, sizeof row);
    std::memcpy(&row, static_cast<const char *>(list) + i * stride, stride < sizeof row ? stride : sizeof row);
    return row;
}

void CheckList(const void * list, size_t count, const char * what)
{
    if (count > kMaxRows)
        Reject(std::string("the ") + what + " count " + std::to_string(count) + " is not believable");
    if (count > 0 && !list)
        Reject(std::string("the ") + what + " count is " + std::to_string(count) + " but the list is null");
}

std::vector<Attribute> ReadAttributes(const REALattribute * list, size_t count, const std::string & where)
{
    if (count > kMaxAttributes || (count > 0 && !list))
        Reject(where + ": the attribute list (count " + std::to_string(count) + ") is not usable");
    std::vector<Attribute> out;
    for (size_t i = 0; i < count; ++i) {
        if (!list[i].mName || !IsIdentifier(list[i].mName))
            Reject(where + ": attribute " + std::to_string(i) + " has no valid name");
        out.push_back({list[i].mName, Text(list[i].mValue)});
    }
    return out;
}

void CheckFlags(Runtime & rt, uint32_t flags, const std::string & where)
{
    if (flags & kPluginPrivateFlag)
        rt.Report(Diagnostic::Level::Warning, where + ": flag 0x40000 has no meaning to the host");
    else if (flags & ~kKnownFlagBits)
        rt.Report(Diagnostic::Level::Warning, where + ": unknown flag bits in 0x" + [&] {
            char b[16];
            std::snprintf(b, sizeof b, "%X", flags);
            return std::string(b);
        }());
}

void ReadMethods(Runtime & rt, ClassInfo & cls, const REALmethodDefinition * list, size_t count, size_t stride,
                 bool shared)
{
    const char * what = shared ? "shared method" : "method";
    CheckList(list, count, what);
    std::vector<MethodInfo> & into = shared ? cls.sharedMethods : cls.methods;
    for (size_t i = 0; i < count; ++i) {
        auto row = ReadRow<REALmethodDefinition>(list, i, stride);
        std::string where = std::string(what) + " row " + std::to_string(i);
        if (!row.declaration)
            Reject(where + " has no declaration");
        where += " \"" + std::string(row.declaration) + "\"";
        MethodInfo m;
        m.owner = &cls;
        m.declaration = row.declaration;
        try {
            m.signature = ParseDeclaration(row.declaration);
        } catch (const SourceError & e) {
            Reject(where + " does not parse at column " + std::to_string(e.where().column) + ": " + e.what());
        }
        if (!row.function)
            Reject(where + " has a null handler");
        if (row.setterFunction && !m.signature.result)
            Reject(where + " has an assignment handler but no result type");
        m.function = row.function;
        m.setter = row.setterFunction;
        m.flags = row.mFlags;
        m.shared = shared;
        m.attributes = ReadAttributes(row.attributes, row.attributeCount, where);
        CheckFlags(rt, m.flags, cls.name + " " + where);
        into.push_back(std::move(m));
    }
}

void ReadProperties(Runtime & rt, ClassInfo & cls, const REALproperty * list, size_t count, size_t stride,
                    bool shared)
{
    const char * what = shared ? "shared property" : "property";
    CheckList(list, count, what);
    std::vector<PropertyInfo> & into = shared ? cls.sharedProperties : cls.properties;
    for (size_t i = 0; i < count; ++i) {
        auto row = ReadRow<REALproperty>(list, i, stride);
        std::string where = std::string(what) + " row " + std::to_string(i);
        if (!row.name || !IsIdentifier(row.name))
            Reject(where + " has no valid name");
        where += " " + std::string(row.name);
        PropertyInfo p;
        p.owner = &cls;
        p.name = row.name;
        if (!row.type || !ParseTypeName(row.type, p.type) || !InfoOf(p.type.kind).inDeclarations)
            Reject(where + " has the type \"" + Text(row.type) + "\", which is not a type");
        p.declaredType = row.type;
        if (!row.getter && !row.setter)
            Reject(where + " has neither a getter nor a setter");
        p.getter = row.getter;
        p.setter = row.setter;
        p.param = row.param;
        p.flags = row.flags;
        p.shared = shared;
        if (p.StandardGetter() || p.StandardSetter()) {
            if (shared)
                Reject(where + " is shared and cannot be stored in object data");
            size_t width = SizeOfCType(CTypeOf(p.type));
            if (row.param < 0 || static_cast<size_t>(row.param) + width > cls.dataSize)
                Reject(where + " is stored at offset " + std::to_string(row.param) +
                       ", outside the class data of " + std::to_string(cls.dataSize) + " bytes");
        }
        p.attributes = ReadAttributes(row.attributes, row.attributeCount, where);
        CheckFlags(rt, p.flags, cls.name + " " + where);
        into.push_back(std::move(p));
    }
}

} // namespace

const ClassInfo & RegisterClass(Runtime & rt, REALclassDefinition * record, const std::string & origin)
{
    if (!record)
        Reject("the class record is null");
    std::string name = Text(record->name);
    if (!IsIdentifier(name))
        Reject("the class record's name \"" + name + "\" is not a name");
    std::string prefix = "class " + name + ": ";
    try {
        uint32_t version = record->version;
        if (version < kControlVersionOldest || version > kControlVersionNewest)
            Reject("the record is for version " + std::to_string(version) + "; this host reads versions " +
                   std::to_string(kControlVersionOldest) + " to " + std::to_string(kControlVersionNewest));
        if (rt.FindClass(name))
            Reject("a class of that name is registered already");
        if (record->dataSize > kMaxDataSize)
            Reject("the data size " + std::to_string(record->dataSize) + " is not believable");
        auto cls = std::make_unique<ClassInfo>();
        cls->name = name;
        cls->record = record;
        cls->origin = origin;
        cls->version = version;
        cls->flags = record->mFlags;
        cls->dataSize = record->dataSize;
        cls->initializer = record->constructor;
        cls->finalizer = record->destructor;
        if (record->superName && *record->superName) {
            cls->super = rt.FindClass(record->superName);
            if (!cls->super)
                Reject("the superclass " + std::string(record->superName) + " is not registered");
        }
        bool withAttributes = version >= kControlVersionAttributes;
        size_t methodStride = withAttributes ? sizeof(REALmethodDefinition) : kMethodRowSizeV9;
        size_t propertyStride = withAttributes ? sizeof(REALproperty) : kPropertyRowSizeV9;
        ReadMethods(rt, *cls, record->methods, record->methodCount, methodStride, false);
        ReadMethods(rt, *cls, record->sharedMethods, record->sharedMethodCount, methodStride, true);
        ReadProperties(rt, *cls, record->properties, record->propertyCount, propertyStride, false);
        ReadProperties(rt, *cls, record->sharedProperties, record->sharedPropertyCount, propertyStride, true);
        if (withAttributes)
            cls->attributes = ReadAttributes(record->attributes, record->attributeCount, "the class");
        CheckList(record->events, record->eventCount, "event");
        CheckList(record->constants, record->constantCount, "constant");
        cls->eventCount = record->eventCount;
        cls->constantCount = record->constantCount;
        if (version >= kControlVersionDelegatesEnums) {
            CheckList(record->delegates, record->delegateCount, "delegate");
            CheckList(record->enums, record->enumCount, "enum");
        }
        CheckFlags(rt, cls->flags, "class " + name);
        if (rt.pluginVersion && origin != kFrameworkOrigin && static_cast<uint32_t>(*rt.pluginVersion) != version)
            rt.Report(Diagnostic::Level::Warning, prefix + "the record says version " + std::to_string(version) +
                      " but the plugin announced " + std::to_string(*rt.pluginVersion));
        size_t base = cls->super ? cls->super->objectSize : sizeof(REALobjectStruct);
        cls->dataOffset = RoundUp(base, kDataAlignment);
        cls->objectSize = cls->dataOffset + cls->dataSize;
        record->forSystemUse = static_cast<RBInteger>(cls->dataOffset);
        return rt.AddClass(std::move(cls));
    } catch (const RegistrationError & e) {
        throw RegistrationError(prefix + e.what());
    }
}

} // namespace hostsim
