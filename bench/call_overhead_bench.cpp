// What a call through the plugin adds to the numeric core's own work. Operator_Add,
// Operator_Multiply and Operator_Divide are called through the function pointers the
// plugin registered, as compiled host code calls them, and each result is released;
// the same operations run on the core directly; and the host's own creation and
// release of an empty object of the class is measured alone. What the plugin adds is
// the call minus the core's work minus the host's object:
//   added = plugin - core - host object.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include <ttmath/ttmath.h>

#include "host/host.h"
#include "host/runtime/class_info.h"
#include "host/runtime/entries.h"
#include "sdk/host_entries.h"

namespace {

using BinaryHandler = REALobject (*)(REALobject, REALobject);
using FromDouble = REALobject (*)(double);

const std::size_t kPoolSize = 16;
const double kTargetAddedNs = 60.0;
const unsigned kTargetBits = 256;
const char * const kOperations[] = {"Operator_Add", "Operator_Multiply", "Operator_Divide"};

hostsim::Host * gHost = nullptr;

struct ClassUnderTest {
    const char * name;
    unsigned bits;
};
const ClassUnderTest kClasses[] = {{"BigNumberZQT", 256}, {"BiggerNumberZQT", 2048}};

const hostsim::ClassInfo & Class(const char * name)
{
    return *gHost->FindClass(name);
}

REALproc Handler(const char * className, const char * method, bool shared)
{
    return Class(className).FindMethods(method, shared).front()->function;
}

// Operands with full mantissas: odd numbers divided by odd numbers.
std::vector<REALobject> Operands(const char * className, int seed)
{
    auto fromDouble = reinterpret_cast<FromDouble>(Handler(className, "NumberWithDouble", true));
    auto divide = reinterpret_cast<BinaryHandler>(Handler(className, "Operator_Divide", false));
    std::vector<REALobject> out;
    for (std::size_t i = 0; i < kPoolSize; ++i) {
        REALobject n = fromDouble(static_cast<double>(seed + 2 * i) * 1.25);
        REALobject d = fromDouble(static_cast<double>(2 * i + 3));
        out.push_back(divide(n, d));
        gHost->runtime().UnlockObject(n, "bench");
        gHost->runtime().UnlockObject(d, "bench");
    }
    return out;
}

void Release(std::vector<REALobject> & objects)
{
    for (REALobject o : objects)
        gHost->runtime().UnlockObject(o, "bench");
}

std::string Name(const std::string & operation, unsigned bits, const char * kind)
{
    return operation + "/" + std::to_string(bits) + "/" + kind;
}

void ThroughPlugin(benchmark::State & state, const char * className, const char * operation)
{
    auto handler = reinterpret_cast<BinaryHandler>(Handler(className, operation, false));
    std::vector<REALobject> a = Operands(className, 7), b = Operands(className, 11);
    std::size_t i = 0;
    for (auto _ : state) {
        REALobject r = handler(a[i], b[i]);
        benchmark::DoNotOptimize(r);
        gHost->runtime().UnlockObject(r, "bench");
        i = (i + 1) % kPoolSize;
    }
    Release(a);
    Release(b);
}

template <class Value>
const Value & ValueOf(REALobject o, const char * className)
{
    const hostsim::ClassInfo & c = Class(className);
    return **reinterpret_cast<Value **>(reinterpret_cast<char *>(o) + c.dataOffset);
}

template <class Value>
void OnCore(benchmark::State & state, const char * className, const char * operation)
{
    std::vector<REALobject> a = Operands(className, 7), b = Operands(className, 11);
    std::vector<Value> x, y;
    for (std::size_t k = 0; k < kPoolSize; ++k) {
        x.push_back(ValueOf<Value>(a[k], className));
        y.push_back(ValueOf<Value>(b[k], className));
    }
    const std::string op = operation;
    std::size_t i = 0;
    for (auto _ : state) {
        Value r = x[i];
        ttmath::uint c = op == "Operator_Add" ? r.Add(y[i]) : op == "Operator_Multiply" ? r.Mul(y[i]) : r.Div(y[i]);
        benchmark::DoNotOptimize(c);
        benchmark::DoNotOptimize(r);
        i = (i + 1) % kPoolSize;
    }
    Release(a);
    Release(b);
}

void HostObject(benchmark::State & state, const char * className)
{
    auto newInstance = reinterpret_cast<PluginNewInstanceProc>(hostsim::ResolveEntry("PluginNewInstance"));
    auto unlock = reinterpret_cast<REALUnlockObjectProc>(hostsim::ResolveEntry("REALUnlockObject"));
    for (auto _ : state) {
        REALobject o = newInstance(className);
        benchmark::DoNotOptimize(o);
        unlock(o);
    }
}

class Collecting : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> fastestNs;
    void ReportRuns(const std::vector<Run> & runs) override
    {
        for (const Run & run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred || run.iterations == 0)
                continue;
            double ns = run.GetAdjustedCPUTime(); // the unit is set to nanoseconds below
            auto it = fastestNs.find(run.run_name.function_name);
            if (it == fastestNs.end() || ns < it->second)
                fastestNs[run.run_name.function_name] = ns;
        }
        ConsoleReporter::ReportRuns(runs);
    }
};

} // namespace

int main(int argc, char ** argv)
{
    hostsim::Host host;
    std::string error;
    if (!host.LoadPlugin(PLUGIN_FILE, error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    gHost = &host;
    for (const ClassUnderTest & c : kClasses) {
        for (const char * op : kOperations) {
            benchmark::RegisterBenchmark(Name(op, c.bits, "plugin").c_str(), ThroughPlugin, c.name, op)
                ->Unit(benchmark::kNanosecond);
            if (c.bits == kTargetBits)
                benchmark::RegisterBenchmark(Name(op, c.bits, "core").c_str(), OnCore<ttmath::Big<1, 4>>, c.name, op)
                    ->Unit(benchmark::kNanosecond);
            else
                benchmark::RegisterBenchmark(Name(op, c.bits, "core").c_str(), OnCore<ttmath::Big<8, 32>>, c.name,
                                             op)
                    ->Unit(benchmark::kNanosecond);
        }
        benchmark::RegisterBenchmark(Name("HostObject", c.bits, "host").c_str(), HostObject, c.name)
            ->Unit(benchmark::kNanosecond);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Collecting reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    auto & ns = reporter.fastestNs;
    bool withinTarget = true;
    std::printf("\nWhat a call through the plugin adds (fastest repetition, ns per call)\n");
    std::printf("%-24s %10s %10s %12s %10s\n", "operation/bits", "plugin", "core", "host object", "added");
    for (const ClassUnderTest & c : kClasses) {
        double hostObject = ns[Name("HostObject", c.bits, "host")];
        for (const char * op : kOperations) {
            double plugin = ns[Name(op, c.bits, "plugin")], core = ns[Name(op, c.bits, "core")];
            if (plugin == 0.0 || core == 0.0)
                continue;
            double added = plugin - core - hostObject;
            std::printf("%-24s %10.1f %10.1f %12.1f %10.1f\n", (std::string(op) + "/" + std::to_string(c.bits)).c_str(),
                        plugin, core, hostObject, added);
            if (c.bits == kTargetBits && added > kTargetAddedNs)
                withinTarget = false;
        }
    }
    std::printf("Target at %u bits: at most %.0f ns added: %s\n", kTargetBits, kTargetAddedNs,
                withinTarget ? "met" : "NOT met");
    return 0;
}
