// Probe: direct-field and accessor properties of every type, echo methods for every
// declared type, a many-argument method that needs the stack, defaults, ByRef,
// assignable methods, overloads, constructors, operators, exceptions and new objects.
#include "probe.h"

#include <cstddef>
#include <cstdio>
#include <string>

#include "host_calls.h"
#include "sdk/flags.h"

namespace {

RBInteger gInitializerCalls = 0;
RBInteger gFinalizerCalls = 0;
RBInteger gCounter = 0;

const char * const kProbeErrorName = "ProbeError";
const RBInteger kProbeErrorNumber = 42;

void Initialize(REALobject self)
{
    DataOf(self).initialized = 1;
    ++gInitializerCalls;
}

void Finalize(REALobject self)
{
    ProbeData & d = DataOf(self);
    Unlock(d.label);
    Unlock(d.link);
    d.label = nullptr;
    d.link = nullptr;
    ++gFinalizerCalls;
}

// --- constructors

void ConstructEmpty(REALobject self)
{
    DataOf(self).label = NewString("made");
}

void ConstructCount(REALobject self, RBInteger count)
{
    DataOf(self).count = count;
}

void ConstructLabel(REALobject self, REALstring label, RBInteger count)
{
    ProbeData & d = DataOf(self);
    Unlock(d.label);
    d.label = Locked(label);
    d.count = count;
}

// --- echo: the value comes back as it went in

template <class T>
T Echo(REALobject, T v)
{
    return v;
}

REALstring EchoString(REALobject, REALstring s)
{
    return Locked(s);
}

REALobject EchoObject(REALobject, REALobject o)
{
    return Locked(o);
}

// Arguments beyond the registers of every ABI, of mixed kinds, formatted as C sees them.
REALstring Mix(REALobject, int8_t a, uint16_t b, float c, double d, int32_t e, REALcurrency f, RBBoolean g,
               RBUInt64 h, REALstring i, RBInt64 j, float k, double l, RBColor m, int16_t n, double o, double p,
               double q, double r, uint8_t s)
{
    char buffer[512];
    std::snprintf(buffer, sizeof buffer, "%d %u %.2f %.3f %d %lld %d %llu %s %lld %.1f %.1f %06X %d %.1f %.1f %.1f %.1f %u",
                  a, b, c, d, e, static_cast<long long>(f), g, static_cast<unsigned long long>(h), Utf8Of(i).c_str(),
                  static_cast<long long>(j), k, l, m, n, o, p, q, r, s);
    return NewString(buffer);
}

double Sum(REALobject, RBInteger a, RBInteger b, double c)
{
    return static_cast<double>(a + b) + c;
}

// --- ByRef: the handler gets the variable's address

void Twice(REALobject, RBInteger * v)
{
    *v *= 2;
}

void Bump(REALobject, int8_t * v)
{
    ++*v;
}

void Halve(REALobject, float * v)
{
    *v /= 2;
}

void Append(REALobject, REALstring * s, REALstring tail)
{
    REALstring joined = HostEntry<RuntimeAddStringProc>("RuntimeAddString")(*s, tail);
    Unlock(*s);
    *s = joined;
}

void SwapProbes(REALobject, REALobject * a, REALobject * b)
{
    REALobject t = *a;
    *a = *b;
    *b = t;
}

// --- assignable methods

RBInteger GetSlot(REALobject self, RBInteger index)
{
    if (index < 0 || index >= kProbeSlots) {
        Raise("OutOfBoundsException", "slot " + std::to_string(index), 0);
        return 0;
    }
    return DataOf(self).slots[index];
}

void SetSlot(REALobject self, RBInteger index, RBInteger value)
{
    if (index >= 0 && index < kProbeSlots)
        DataOf(self).slots[index] = value;
}

void SetCell(REALobject self, RBInteger index, REALstring value)
{
    ProbeData & d = DataOf(self);
    Unlock(d.label);
    d.label = NewString(std::to_string(index) + ":" + Utf8Of(value));
}

// --- overloads: which one the host picked

REALstring KindInteger(REALobject, RBInteger) { return NewString("Integer"); }
REALstring KindDouble(REALobject, double) { return NewString("Double"); }
REALstring KindString(REALobject, REALstring) { return NewString("String"); }
REALstring KindProbe(REALobject, REALobject) { return NewString("Probe"); }
REALstring KindInt8(REALobject, int8_t) { return NewString("Int8"); }

// --- operators and conversions

REALobject AddProbe(REALobject self, REALobject other)
{
    return NewProbe(DataOf(self).count + (other ? DataOf(other).count : 0));
}

REALobject AddInteger(REALobject self, RBInteger v)
{
    return NewProbe(DataOf(self).count + v);
}

REALobject SubtractRight(REALobject self, RBInteger v)
{
    return NewProbe(v - DataOf(self).count);
}

REALobject Negate(REALobject self)
{
    return NewProbe(-DataOf(self).count);
}

RBInteger CompareProbe(REALobject self, REALobject other)
{
    RBInteger a = DataOf(self).count, b = other ? DataOf(other).count : 0;
    return a < b ? -1 : a > b ? 1 : 0;
}

REALstring ConvertToString(REALobject self)
{
    return NewString("Probe(" + std::to_string(DataOf(self).count) + ")");
}

void ConvertFromInteger(REALobject self, RBInteger v)
{
    DataOf(self).count = v;
}

// --- exceptions and new objects

void Fail(REALobject, REALstring message)
{
    Raise(kProbeErrorName, Utf8Of(message), kProbeErrorNumber);
}

void StoreThenFail(REALobject self, RBInteger v)
{
    DataOf(self).count = v;
    Raise(kProbeErrorName, "stored " + std::to_string(v), kProbeErrorNumber);
}

REALobject FailReturningNil(REALobject)
{
    Raise("UnsupportedOperationException", "no probe today", 0);
    return nullptr;
}

REALobject Clone(REALobject self)
{
    REALobject copy = NewProbe(DataOf(self).count);
    Unlock(DataOf(copy).label); // a host that runs Constructor() on new instances filled it
    DataOf(copy).label = Locked(DataOf(self).label);
    return copy;
}

// --- accessor properties: `param` comes back as the second argument

RBInteger GetTag(REALobject self, RBInteger param)
{
    return DataOf(self).count * 1000 + param;
}

void SetTag(REALobject self, RBInteger param, RBInteger v)
{
    DataOf(self).count = v + param;
}

RBInteger GetCounter() { return gCounter; }
void SetCounter(RBInteger v) { gCounter = v; }
RBInteger GetInitCount() { return gInitializerCalls; }
RBInteger GetFinalCount() { return gFinalizerCalls; }

REALobject MakeProbe(RBInteger count)
{
    return NewProbe(count);
}

float AverageShared(double a, float b)
{
    return static_cast<float>((a + b) / 2);
}

template <class T>
REALproc Proc(T f)
{
    return reinterpret_cast<REALproc>(f);
}

REALattribute gHidden[] = {{"Hidden", ""}};
REALattribute gClassAttributes[] = {{"Description", "a test class"}};

#define ROW(function, declaration) {Proc(function), nullptr, declaration, REALTargetAll, 0, nullptr}

REALmethodDefinition gMethods[] = {
    ROW(&ConstructEmpty, "Constructor()"),
    ROW(&ConstructCount, "Constructor(count As Integer)"),
    ROW(&ConstructLabel, "Constructor(label As String, count As Integer = 5)"),
    ROW(&Echo<RBBoolean>, "EchoBoolean(v As Boolean) As Boolean"),
    ROW(&Echo<int8_t>, "EchoInt8(v As Int8) As Int8"),
    ROW(&Echo<uint8_t>, "EchoUInt8(v As UInt8) As UInt8"),
    ROW(&Echo<int16_t>, "EchoInt16(v As Int16) As Int16"),
    ROW(&Echo<uint16_t>, "EchoUInt16(v As UInt16) As UInt16"),
    ROW(&Echo<int32_t>, "EchoInt32(v As Int32) As Int32"),
    ROW(&Echo<uint32_t>, "EchoUInt32(v As UInt32) As UInt32"),
    ROW(&Echo<RBInt64>, "EchoInt64(v As Int64) As Int64"),
    ROW(&Echo<RBUInt64>, "EchoUInt64(v As UInt64) As UInt64"),
    ROW(&Echo<RBInteger>, "EchoInteger(v As Integer) As Integer"),
    ROW(&Echo<RBUInteger>, "EchoUInteger(v As UInteger) As UInteger"),
    ROW(&Echo<float>, "EchoSingle(v As Single) As Single"),
    ROW(&Echo<double>, "EchoDouble(v As Double) As Double"),
    ROW(&Echo<REALcurrency>, "EchoCurrency(v As Currency) As Currency"),
    ROW(&Echo<RBColor>, "EchoColor(v As Color) As Color"),
    ROW(&Echo<void *>, "EchoPtr(v As Ptr) As Ptr"),
    ROW(&EchoString, "EchoString(v As String) As String"),
    ROW(&EchoObject, "EchoVariant(v As Variant) As Variant"),
    ROW(&EchoObject, "EchoMemoryBlock(v As MemoryBlock) As MemoryBlock"),
    ROW(&EchoObject, "EchoProbe(v As Probe) As Probe"),
    ROW(&Mix, "Mix(a As Int8, b As UInt16, c As Single, d As Double, e As Int32, f As Currency, g As Boolean, "
              "h As UInt64, i As String, j As Int64, k As Single, l As Double, m As Color, n As Int16, "
              "o As Double, p As Double, q As Double, r As Double, s As UInt8) As String"),
    ROW(&Sum, "Sum(a As Integer, b As Integer = 10, c As Double = 0.5) As Double"),
    ROW(&Twice, "Twice(ByRef v As Integer)"),
    ROW(&Bump, "Bump(ByRef v As Int8)"),
    ROW(&Halve, "Halve(ByRef v As Single)"),
    ROW(&Append, "Append(ByRef s As String, tail As String)"),
    ROW(&SwapProbes, "SwapProbes(ByRef a As Probe, ByRef b As Probe)"),
    {Proc(&GetSlot), Proc(&SetSlot), "Slot(index As Integer) As Integer", REALTargetAll, 0, nullptr},
    ROW(&SetCell, "Cell(index As Integer, Assigns value As String)"),
    ROW(&KindInteger, "Kind(v As Integer) As String"),
    ROW(&KindDouble, "Kind(v As Double) As String"),
    ROW(&KindString, "Kind(v As String) As String"),
    ROW(&KindProbe, "Kind(v As Probe) As String"),
    ROW(&KindInt8, "Kind(v As Int8) As String"),
    ROW(&AddProbe, "Operator_Add(other As Probe) As Probe"),
    ROW(&AddInteger, "Operator_Add(v As Integer) As Probe"),
    ROW(&AddInteger, "Operator_AddRight(v As Integer) As Probe"),
    ROW(&SubtractRight, "Operator_SubtractRight(v As Integer) As Probe"),
    ROW(&Negate, "Operator_Negate() As Probe"),
    ROW(&CompareProbe, "Operator_Compare(other As Probe) As Integer"),
    ROW(&ConvertToString, "Operator_Convert() As String"),
    ROW(&ConvertFromInteger, "Operator_Convert(v As Integer)"),
    ROW(&Fail, "Fail(message As String)"),
    ROW(&StoreThenFail, "StoreThenFail(v As Integer)"),
    ROW(&FailReturningNil, "FailReturningNil() As Probe"),
    {Proc(&Clone), nullptr, "Clone() As Probe", REALTargetAll, 1, gHidden},
};

#define FIELD(name, type, field) \
    {nullptr, name, type, REALTargetAll | REALTargetRuntimeOnly, REALstandardGetter, REALstandardSetter, \
     offsetof(ProbeData, field), nullptr, 0, nullptr, 0, nullptr}

REALproperty gProperties[] = {
    FIELD("Count", "Integer", count),
    FIELD("Ratio", "Double", ratio),
    FIELD("Flag", "Boolean", flag),
    FIELD("Small", "Int32", small),
    FIELD("Fraction", "Single", fraction),
    FIELD("Money", "Currency", money),
    FIELD("Big", "UInt64", big),
    FIELD("Tint", "Color", tint),
    FIELD("Label", "String", label),
    FIELD("Link", "Probe", link),
    {nullptr, "Initialized", "Boolean", REALTargetAll, REALstandardGetter, nullptr, offsetof(ProbeData, initialized),
     nullptr, 0, nullptr, 0, nullptr},
    {nullptr, "Tag", "Integer", REALTargetAll, Proc(&GetTag), Proc(&SetTag), 7, nullptr, 0, nullptr, 1, gHidden},
};

REALproperty gSharedProperties[] = {
    {nullptr, "Counter", "Integer", REALTargetAll, Proc(&GetCounter), Proc(&SetCounter), 0, nullptr, 0, nullptr, 0, nullptr},
    {nullptr, "InitCount", "Integer", REALTargetAll, Proc(&GetInitCount), nullptr, 0, nullptr, 0, nullptr, 0, nullptr},
    {nullptr, "FinalCount", "Integer", REALTargetAll, Proc(&GetFinalCount), nullptr, 0, nullptr, 0, nullptr, 0, nullptr},
};

REALmethodDefinition gSharedMethods[] = {
    ROW(&MakeProbe, "Make(count As Integer) As Probe"),
    ROW(&AverageShared, "Average(a As Double, b As Single) As Single"),
};

template <class T, size_t N>
size_t CountOf(T (&)[N])
{
    return N;
}

} // namespace

REALclassDefinition gProbeClass = [] {
    REALclassDefinition d{};
    d.version = kControlVersionModuleNesting;
    d.name = "Probe";
    d.dataSize = sizeof(ProbeData);
    d.constructor = Proc(&Initialize);
    d.destructor = Proc(&Finalize);
    d.properties = gProperties;
    d.propertyCount = CountOf(gProperties);
    d.methods = gMethods;
    d.methodCount = CountOf(gMethods);
    d.attributes = gClassAttributes;
    d.attributeCount = CountOf(gClassAttributes);
    d.mFlags = REALTargetAll;
    d.sharedProperties = gSharedProperties;
    d.sharedPropertyCount = CountOf(gSharedProperties);
    d.sharedMethods = gSharedMethods;
    d.sharedMethodCount = CountOf(gSharedMethods);
    return d;
}();

ProbeData & DataOf(REALobject probe)
{
    return *reinterpret_cast<ProbeData *>(reinterpret_cast<char *>(probe) + gProbeClass.forSystemUse);
}

REALobject NewProbe(RBInteger count)
{
    REALobject p = HostEntry<PluginNewInstanceProc>("PluginNewInstance")("Probe");
    DataOf(p).count = count;
    return p;
}
