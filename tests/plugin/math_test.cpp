// The shared math methods where a script cannot look: Rand against the C library's
// generator as the test seeds it (unseeded in the IDE, seeded from the time and the
// process id at load in a built application), and the exact order of the trace.
#include <unistd.h>

#include <cstdlib>
#include <ctime>

#include "plugin_test_support.h"

namespace plugin_test {
namespace {

const unsigned kTestSeed = 4242;
const unsigned kByteMask = 0xFF;
const int kProcessIdWeight = 17;

// Bytes of the mantissa and of the exponent of each class.
struct Widths {
    size_t mantissa;
    size_t exponent;
};
const Widths kBigWidths{32, 8};
const Widths kBiggerWidths{256, 64};

// Prints the bytes of one Rand of each class: mantissa, then exponent, lowest first.
const char * const kRandScript = R"(Sub Show(mantissa As MemoryBlock, exponent As MemoryBlock, flags As Integer)
  Var s As String = Str(flags) + ":"
  For i As Integer = 0 To mantissa.Size - 1
    s = s + " " + Str(mantissa.Byte(i))
  Next
  s = s + " /"
  For i As Integer = 0 To exponent.Size - 1
    s = s + " " + Str(exponent.Byte(i))
  Next
  Print s
End Sub
Var big As BigNumberZQT = BigNumberZQT.Rand
Show(big.DataMantissa, big.DataExponent, big.DataFlags)
Var bigger As BiggerNumberZQT = BiggerNumberZQT.Rand
Show(bigger.DataMantissa, bigger.DataExponent, bigger.DataFlags)
)";

// What kRandScript prints when the generator was seeded with `seed`: one draw's low
// byte for each byte, every flag clear.
std::string DrawnAfter(unsigned seed)
{
    std::srand(seed);
    std::string expected;
    for (const Widths & widths : {kBigWidths, kBiggerWidths}) {
        expected += "0:";
        for (size_t i = 0; i < widths.mantissa + widths.exponent; ++i) {
            if (i == widths.mantissa)
                expected += " /";
            expected += " " + std::to_string(static_cast<unsigned>(std::rand()) & kByteMask);
        }
        expected += "\n";
    }
    return expected;
}

class RandomNumbers : public PluginHost {};

TEST_F(RandomNumbers, InTheIdeTheGeneratorIsLeftAsItWas)
{
    host.Settings().inRuntime = false;
    std::srand(kTestSeed);
    LoadOrFail();
    std::string drawn = Output(kRandScript);
    EXPECT_EQ(drawn, DrawnAfter(kTestSeed));
}

TEST_F(RandomNumbers, AHostThatCannotTellIsTreatedAsTheIde)
{
    host.HideEntry("REALinRuntime");
    std::srand(kTestSeed);
    LoadOrFail();
    std::string drawn = Output(kRandScript);
    EXPECT_EQ(drawn, DrawnAfter(kTestSeed));
}

TEST_F(RandomNumbers, ABuiltApplicationSeedsOnceAtLoadFromTheTimeAndTheProcessId)
{
    host.Settings().inRuntime = true;
    std::srand(kTestSeed);
    const std::time_t before = std::time(nullptr);
    LoadOrFail();
    const std::time_t after = std::time(nullptr);
    std::string drawn = Output(kRandScript);

    EXPECT_NE(drawn, DrawnAfter(kTestSeed));
    bool matched = false;
    for (std::time_t t = before; t <= after && !matched; ++t)
        matched = drawn == DrawnAfter(static_cast<unsigned>(static_cast<uint32_t>(t + kProcessIdWeight * getpid())));
    EXPECT_TRUE(matched) << drawn;

    // Seeded once: later calls draw on from wherever the generator stands.
    std::srand(kTestSeed);
    drawn = Output(kRandScript);
    EXPECT_EQ(drawn, DrawnAfter(kTestSeed));
}

class MathTrace : public PluginHost {
protected:
    void SetUp() override { LoadOrFail(); }
};

TEST_F(MathTrace, NamesEachCallInOrderAndLeavesTheConstantsSilent)
{
    std::string trace = CapturedStandardError([&] {
        Output("BigNumberZQT.Debugging = True\n"
               "Var pi As BigNumberZQT = BigNumberZQT.Pi\n"
               "Var s As String = BiggerNumberZQT.LibTypeStr\n"
               "Var a As BigNumberZQT = BigNumberZQT.Sin(pi)\n"
               "Var b As BigNumberZQT = BigNumberZQT.DegToGrad(pi, pi, pi)\n"
               "Var c As BigNumberZQT = BigNumberZQT.DegToGrad(pi)\n"
               "Var r As BiggerNumberZQT = BiggerNumberZQT.Rand\n"
               "Try\n"
               "  Var d As BigNumberZQT = BigNumberZQT.Ln(a.Negate)\n"
               "Catch e As BigNumberErrorExceptionZQT\n"
               "End Try\n"
               "Var p As BigNumberZQT = pi ^ pi.Sqrt\n"
               "BigNumberZQT.Debugging = False\n");
    });
    EXPECT_EQ(trace, "ZQT Debug: Sin\n"
                     "ZQT Debug: DegToGrad3\n"
                     "ZQT Debug: DegToGrad\n"
                     "ZQT Debug: GetRand\n"
                     "ZQT Debug: mantissaLength 256\n"
                     "ZQT Debug: exponentLength 64\n"
                     "ZQT Debug: ChangeSign\n"
                     "ZQT Debug: Ln\n"
                     "ZQT Debug: RaiseOverflowException\n"
                     "ZQT Debug: Destructor\n"
                     "ZQT Debug: Sqrt\n"
                     "ZQT Debug: Pow\n"
                     "ZQT Debug: Destructor\n");
}

} // namespace
} // namespace plugin_test
