// The pieces under the script language: tokens, number text, and the conversions that
// rank overloads and store values.
#include <gtest/gtest.h>

#include "host/host.h"
#include "host/lang/lexer.h"
#include "host/runtime/conversions.h"
#include "host/runtime/formatting.h"
#include "host/script/parser.h"

namespace hostsim {
namespace {

TEST(Lexer, ContinuationsCommentsAndLiterals)
{
    std::vector<Token> t = Tokenize("a = &hFF + &c102030 _ ' joined\n  + 18446744073709551615 // c\nRem all\n\"q\"\"\"");
    std::vector<std::string> texts;
    for (const Token & k : t)
        texts.push_back(k.kind == TokenKind::EndOfLine ? "EOL" : k.text);
    EXPECT_EQ(texts, (std::vector<std::string>{"a", "=", "FF", "+", "102030", "+", "18446744073709551615", "EOL", "EOL",
                                               "q\"", ""}));
    EXPECT_EQ(t[2].integer, 255u);
    EXPECT_TRUE(t[4].isColor);
    EXPECT_TRUE(t[6].isUnsigned);
    EXPECT_EQ(t[6].where.line, 2);
    EXPECT_EQ(t[6].where.column, 5);
}

TEST(Lexer, ErrorsNameTheirPlace)
{
    auto where = [](const char * text) {
        try {
            Tokenize(text);
        } catch (const SourceError & e) {
            return e.Describe();
        }
        return std::string("no error");
    };
    EXPECT_EQ(where("x = 1\ny = \"open"), "line 2, column 5: the string is not closed with a quote");
    EXPECT_EQ(where("x = 99999999999999999999"), "line 1, column 5: the number 99999999999999999999 does not fit in 64 bits");
    EXPECT_EQ(where("x = 1 # 2"), "line 1, column 7: unexpected character #");
}

TEST(Parser, BlocksLeftOpenAskForMoreInput)
{
    EXPECT_THROW(ParseProgram("If True Then\nPrint 1\n"), IncompleteInput);
    EXPECT_THROW(ParseProgram("For i As Integer = 1 To 2\n"), IncompleteInput);
    try {
        ParseProgram("If True Then\nPrint 1\nEnd While\n");
        FAIL();
    } catch (const IncompleteInput &) {
        FAIL() << "a wrong closing word is a plain error";
    } catch (const SourceError & e) {
        EXPECT_EQ(e.where().line, 3);
    }
}

TEST(Parser, RefusesNestingDeeperThanItReads)
{
    std::string deep(100000, '(');
    EXPECT_THROW(ParseProgram("Print " + deep + "1"), SourceError);
    std::string negations;
    for (int i = 0; i < 100000; ++i)
        negations += "Not ";
    EXPECT_THROW(ParseProgram("Print " + negations + "True"), SourceError);
    EXPECT_NO_THROW(ParseProgram("Print ((((((((((1))))))))))"));
}

TEST(Formatting, NumbersAsStrWritesThem)
{
    EXPECT_EQ(FormatReal(2.5), "2.5");
    EXPECT_EQ(FormatReal(1e10), "1e+10");
    EXPECT_EQ(FormatReal(-1.5e-7), "-1.5e-7");
    EXPECT_EQ(FormatReal(1234567), "1234567");
    EXPECT_EQ(FormatCurrency(15000), "1.5");
    EXPECT_EQ(FormatCurrency(-5), "-0.0005");
    EXPECT_EQ(FormatCurrency(INT64_MIN), "-922337203685477.5808");
    EXPECT_EQ(ParseInteger("  -12abc"), -12);
    EXPECT_EQ(ParseInteger("&hFFFFFFFFFFFFFFFF"), -1);
    EXPECT_EQ(ParseInteger("2.9e2"), 290);
    EXPECT_EQ(ParseUnsigned("18446744073709551615"), UINT64_MAX);
    EXPECT_DOUBLE_EQ(ParseReal("x"), 0);
}

TEST(Conversions, CostsRankExactThenWideningThenTheRest)
{
    Host host;
    const Runtime & rt = host.runtime();
    auto cost = [&](TypeKind from, TypeKind to) { return ConversionCost(rt, TypeRef::Of(from), TypeRef::Of(to)); };
    EXPECT_EQ(cost(TypeKind::Int64, TypeKind::Int64), 0);
    EXPECT_LT(cost(TypeKind::Int32, TypeKind::Int64), cost(TypeKind::Int64, TypeKind::Int32));
    EXPECT_LT(cost(TypeKind::Int64, TypeKind::Int8), cost(TypeKind::Int64, TypeKind::Double));
    EXPECT_LT(cost(TypeKind::Int64, TypeKind::Double), cost(TypeKind::Int64, TypeKind::Variant));
    EXPECT_LT(cost(TypeKind::Single, TypeKind::Double), cost(TypeKind::Double, TypeKind::Single));
    EXPECT_EQ(cost(TypeKind::Int64, TypeKind::String), kCannotConvert);
    EXPECT_EQ(cost(TypeKind::Boolean, TypeKind::Int64), kCannotConvert);
    EXPECT_EQ(cost(TypeKind::Int64, TypeKind::Color), kCannotConvert);
    TypeRef exception = TypeRef::OfClass("RuntimeException"), nilObject = TypeRef::OfClass("NilObjectException");
    EXPECT_LT(ConversionCost(rt, nilObject, exception), ConversionCost(rt, nilObject, TypeRef::OfClass("Object")));
    EXPECT_EQ(ConversionCost(rt, exception, nilObject), kCannotConvert);
    EXPECT_EQ(ConversionCost(rt, NilType(), exception), 0);
}

TEST(Conversions, ValuesKeepTheirMeaningAcrossTypes)
{
    Host host;
    Runtime & rt = host.runtime();
    EXPECT_EQ(Convert(rt, Value::Real(TypeKind::Double, 1.23456), TypeRef::Of(TypeKind::Currency)).AsSigned(), 12346);
    EXPECT_EQ(Convert(rt, Value::Currency(80000000), TypeRef::Of(TypeKind::Int32)).AsSigned(), 8000);
    EXPECT_EQ(Convert(rt, Value::Real(TypeKind::Double, -2.9), TypeRef::Of(TypeKind::Int64)).AsSigned(), -2);
    EXPECT_EQ(Convert(rt, Value::Signed(TypeKind::Int64, 300), TypeRef::Of(TypeKind::UInt8)).AsUnsigned(), 44u);
    EXPECT_EQ(Convert(rt, Value::Signed(TypeKind::Int64, -1), TypeRef::Of(TypeKind::UInt32)).AsUnsigned(), 0xFFFFFFFFu);
    Value text = Value::AdoptString(TypeKind::String, rt.NewString("  42.75", 0x08000100));
    EXPECT_EQ(ConvertLoosely(rt, text, TypeKind::Int64).AsSigned(), 42);
    EXPECT_DOUBLE_EQ(ConvertLoosely(rt, text, TypeKind::Double).AsReal(), 42.75);
    EXPECT_EQ(TextOf(ConvertLoosely(rt, Value::Signed(TypeKind::Int64, -7), TypeKind::String)), "-7");
    Value boxed = Convert(rt, Value::Unsigned(TypeKind::UInt64, UINT64_MAX), TypeRef::Of(TypeKind::Variant));
    EXPECT_EQ(boxed.object()->cls->name, "_VariantUInt64");
    EXPECT_EQ(Convert(rt, boxed, TypeRef::Of(TypeKind::UInt64)).AsUnsigned(), UINT64_MAX);
    EXPECT_THROW(Convert(rt, boxed, TypeRef::OfClass("MemoryBlock")), ConversionError);
}

} // namespace
} // namespace hostsim
