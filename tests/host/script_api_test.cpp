// Running scripts through the library: exit codes, messages, and the interactive form.
#include <gtest/gtest.h>

#include <sstream>

#include "host/host.h"

namespace hostsim {
namespace {

struct Ran {
    int code;
    std::string out;
    std::string err;
};

Ran RunText(const std::string & script)
{
    Host host;
    std::ostringstream out, err;
    int code = host.Run(script, out, err);
    return {code, out.str(), err.str()};
}

TEST(ScriptApi, ExitCodesAndMessages)
{
    Ran ok = RunText("Print 1 + 2");
    EXPECT_EQ(ok.code, kExitSuccess);
    EXPECT_EQ(ok.out, "3\n");
    EXPECT_EQ(ok.err, "");

    Ran unhandled = RunText("Print \"a\"\nRaise New OutOfBoundsException(\"too far\")\nPrint \"b\"");
    EXPECT_EQ(unhandled.code, kExitUnhandledException);
    EXPECT_EQ(unhandled.out, "a\n");
    EXPECT_EQ(unhandled.err, "Unhandled OutOfBoundsException: too far\n");

    Ran parse = RunText("Print 1\nVar x As = 2");
    EXPECT_EQ(parse.code, kExitScriptError);
    EXPECT_EQ(parse.out, "");
    EXPECT_EQ(parse.err, "line 2, column 10: expected a type name but found '='\n");

    Ran mistake = RunText("Var s As String = 5");
    EXPECT_EQ(mistake.code, kExitScriptError);
    EXPECT_EQ(mistake.err, "line 1, column 19: cannot convert Int64 to String\n");

    Ran division = RunText("Try\nPrint 1 \\ 0\nCatch e\nPrint e.Message\nEnd Try");
    EXPECT_EQ(division.out, "Division by zero.\n");
}

TEST(ScriptApi, InteractiveRunsEachStatementAndKeepsVariables)
{
    Host host;
    std::istringstream in("Var n As Integer = 2\nIf n = 2 Then\nPrint \"two\"\nEnd If\nPrint (\nn = n * 5\nPrint n\n");
    std::ostringstream out, err;
    int code = host.RunInteractive(in, out, err, false);
    EXPECT_EQ(out.str(), "two\n10\n");
    EXPECT_EQ(err.str(), "line 1, column 8: expected a value but found the end of the line\n");
    EXPECT_EQ(code, kExitSuccess);
}

} // namespace
} // namespace hostsim
