#include <gtest/gtest.h>

#include "host/runtime/declaration.h"

namespace hostsim {
namespace {

TEST(Declaration, ReadsEveryPartOfAMethodRow)
{
    Signature s = ParseDeclaration(
        "item(ByRef a As integer, b As Probe = Nil, c As Double = -1.5, d As String = \"x\"\"y\", "
        "e As Color = &cFF0000, Assigns value As Boolean) As UInt64");
    EXPECT_EQ(s.name, "item");
    ASSERT_EQ(s.parameters.size(), 6u);
    EXPECT_TRUE(s.parameters[0].byRef);
    EXPECT_EQ(s.parameters[0].type, TypeRef::Of(TypeKind::Int64));
    EXPECT_EQ(s.parameters[1].type, TypeRef::OfClass("probe"));
    EXPECT_EQ(s.parameters[1].defaultValue->kind, Literal::Kind::Nil);
    EXPECT_DOUBLE_EQ(s.parameters[2].defaultValue->real, -1.5);
    EXPECT_EQ(s.parameters[3].defaultValue->text, "x\"y");
    EXPECT_EQ(s.parameters[4].defaultValue->kind, Literal::Kind::Color);
    EXPECT_EQ(s.parameters[4].defaultValue->unsignedInteger, 0xFF0000u);
    EXPECT_TRUE(s.HasAssigns());
    EXPECT_EQ(s.RequiredCount(), 2u);
    EXPECT_EQ(*s.result, TypeRef::Of(TypeKind::UInt64));
}

TEST(Declaration, MatchesTextsThatDifferOnlyInSpellingAndNames)
{
    Signature framework = ParseDeclaration("LenB(str As String) As Integer");
    EXPECT_TRUE(ParseDeclaration("LenB( s as string ) as integer").SameShape(framework));
    EXPECT_TRUE(ParseDeclaration("lenb(s as String) as Int64").SameShape(framework));
    EXPECT_FALSE(ParseDeclaration("LenB(s As String) As Int32").SameShape(framework));
    EXPECT_FALSE(ParseDeclaration("LenB(ByRef s As String) As Integer").SameShape(framework));
    EXPECT_FALSE(ParseDeclaration("LenB(s As String)").SameShape(framework));
}

TEST(Declaration, ReportsWhereTheTextGoesWrong)
{
    struct Case {
        const char * text;
        int column;
        const char * words;
    };
    const Case cases[] = {
        {"Broken(x As) As", 12, "expected a type name"},
        {"F(a As Integer", 15, "expected ')'"},
        {"F(a() As Integer)", 4, "array"},
        {"F(Assigns a As Integer, b As Integer)", 38, "only the last parameter"},
        {"F(x As Text)", 12, "cannot be used"},
        {"F() As Integer extra", 16, "unexpected"},
        {"F(x As Integer = y)", 18, "constant"},
    };
    for (const Case & c : cases) {
        try {
            ParseDeclaration(c.text);
            ADD_FAILURE() << c.text << " parsed";
        } catch (const SourceError & e) {
            EXPECT_EQ(e.where().column, c.column) << c.text;
            EXPECT_NE(std::string(e.what()).find(c.words), std::string::npos) << c.text << ": " << e.what();
        }
    }
}

} // namespace
} // namespace hostsim
