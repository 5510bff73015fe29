// Text methods and variants through the simulated host, where a script cannot look:
// the exact trace of each handler, hosts that lack the services variants are read
// with, and texts whose bytes are not valid UTF-8.
#include "plugin_test_support.h"

namespace plugin_test {
namespace {

class TextAndVariants : public PluginHost {};

TEST_F(TextAndVariants, EachHandlerTracesItsOwnNameInOrder)
{
    LoadOrFail();
    std::string trace = CapturedStandardError([&] {
        Output("Var a As New BigNumberZQT(1)\n"
               "Var c As New BigNumberConversionZQT\n"
               "Var rest As String\n"
               "Var ok As Boolean\n"
               "Var d As New Date\n"
               "BigNumberZQT.Debugging = True\n"
               "a.StringValue = \"2\"\n"
               "Var s As String = a.StringValue(2)\n"
               "s = a\n"
               "a.StringValue(2) = \"11\"\n"
               "s = a.GetStringValue(c)\n"
               "a.SetStringValue(\"3\", 10, rest, ok)\n"
               "a.SetStringValue(\"4\", c, rest, ok)\n"
               "a.SetStringValue(\"5\", c)\n"
               "Try\n  s = a.GetStringValue(17)\nCatch e As BigNumberErrorExceptionZQT\nEnd Try\n"
               "Var v As Variant = a.VariantValue\n"
               "a.VariantValue = 2.5\n"
               "a.VariantValue = d\n"
               "a = BigNumberZQT.NumberWithVariant(0.5)\n"
               "BigNumberZQT.Debugging = False\n");
    });
    EXPECT_EQ(trace, "ZQT Debug: SetStringValue\n"
                     "ZQT Debug: GetStringValueBase\n"
                     "ZQT Debug: GetStringValue\n"
                     "ZQT Debug: SetStringValueBase\n"
                     "ZQT Debug: GetStringValueConv\n"
                     "ZQT Debug: SetStringValueExt\n"
                     "ZQT Debug: SetStringValueConv\n"
                     "ZQT Debug: SetStringValueConv2\n"
                     "ZQT Debug: GetStringValueExt\n"
                     "ZQT Debug: RaiseOverflowException\n"
                     "ZQT Debug: GetVariantValue\n"
                     "ZQT Debug: GetStringValue\n"
                     "ZQT Debug: SetVariantValue\n"
                     "ZQT Debug: SetDoubleValue\n"
                     "ZQT Debug: SetVariantValue\n"
                     "ZQT Debug: GetDateTotalSeconds 0.000000\n"
                     "ZQT Debug: SetDoubleValue\n"
                     "ZQT Debug: NumberWithVariant\n"
                     "ZQT Debug: NumberWithDouble\n"
                     "ZQT Debug: Destructor\n");
}

TEST_F(TextAndVariants, NumberWithStringTracesTheStringAndItsText)
{
    LoadOrFail();
    std::string trace = CapturedStandardError([&] {
        Output("BiggerNumberZQT.Debugging = True\n"
               "Var a As BiggerNumberZQT = BiggerNumberZQT.NumberWithString(\"7.5\")\n"
               "BiggerNumberZQT.Debugging = False\n");
    });
    const std::string start = "ZQT Debug: NumberWithString 0x";
    const std::string end = ": 7.5\n";
    ASSERT_GT(trace.size(), start.size() + end.size()) << trace;
    EXPECT_EQ(trace.substr(0, start.size()), start);
    EXPECT_EQ(trace.substr(trace.size() - end.size()), end);
}

TEST_F(TextAndVariants, AnUnreadableDateTimeStoresZeroAndSaysSo)
{
    host.HideEntry("REALGetPropValueDouble");
    LoadOrFail();
    std::string output;
    std::string trace = CapturedStandardError([&] {
        output = Output("Var a As New BigNumberZQT(5)\n"
                        "BigNumberZQT.Debugging = True\n"
                        "a.VariantValue = New DateTime(12.5)\n"
                        "BigNumberZQT.Debugging = False\n"
                        "Print a\n"
                        "Print BigNumberZQT.NumberWithVariant(New DateTime(12.5))\n");
    });
    EXPECT_EQ(output, "0\n0\n");
    EXPECT_EQ(trace, "ZQT Debug: SetVariantValue\n"
                     "ZQT Debug: Failed to read SecondsFrom1970 property.\n"
                     "ZQT Debug: SetDoubleValue\n");
}

class HiddenVariantService : public HiddenEntryHost {};

TEST_P(HiddenVariantService, DegradesToAZeroOrRefusedValue)
{
    EXPECT_EQ(OutputWithEntryHidden(), GetParam().output);
}

// An unsigned variant, a number of the class and one of the other class.
const char * const kClassScript = "Var u As UInt64 = 18446744073709551615\n"
                                  "Print BigNumberZQT.NumberWithVariant(u)\n"
                                  "Var a As New BigNumberZQT(1)\n"
                                  "a.VariantValue = u\n"
                                  "Print a\n"
                                  "Try\n"
                                  "  a.VariantValue = New BigNumberZQT(2)\n"
                                  "Catch e As UnsupportedOperationException\n"
                                  "  Print e.Message\n"
                                  "End Try\n"
                                  "Print a\n";
const char * const kUnsigned = "-1\n-1\nConversion not supported.\n-1\n";

INSTANTIATE_TEST_SUITE_P(
    Plugin, HiddenVariantService,
    ::testing::Values(
        // Without VarType (and without a Type property) every variant holds nothing.
        HiddenCase{"VarType", "Var a As New BigNumberZQT(5)\na.VariantValue = 7\nPrint a\n"
                              "Print BigNumberZQT.NumberWithVariant(\"8\") Is Nil\n", "0\nTrue\n"},
        HiddenCase{"pluginObjectType", kClassScript, kUnsigned},
        HiddenCase{"RuntimeObjectIsa", kClassScript, kUnsigned},
        HiddenCase{"REALGetPropValueCurrency", "Var m As Currency = 2.5\nPrint BigNumberZQT.NumberWithVariant(m)\n",
                   "0\n"},
        HiddenCase{"StringToVariant", "Print New BigNumberZQT(5).VariantValue Is Nil\n", "True\n"}));

TEST_F(TextAndVariants, TextThatIsNotUtf8IsReadUpToTheFirstByteThatIsNoDigit)
{
    LoadOrFail();
    EXPECT_EQ(Output("Var a As New BiggerNumberZQT\n"
                     "Var rest As String\n"
                     "Var ok As Boolean\n"
                     "a.SetStringValue(\"12\xFF\xFE.5\", 10, rest, ok)\n"
                     "Print a\n"
                     "Print rest\n"
                     "Print LenB(rest)\n"
                     "a.SetStringValue(\"\xC3\x28\", 10, rest, ok)\n"
                     "Print Str(ok) + \" \" + Str(LenB(rest))\n"
                     "a.StringValue = \"\xE9\"\n"
                     "Print a\n"),
              "12\n\xFF\xFE.5\n4\nFalse 2\n0\n");
}

} // namespace
} // namespace plugin_test
