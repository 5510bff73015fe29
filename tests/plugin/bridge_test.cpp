// The host bridge called directly, with the simulated host as the resolver: raising
// and its messages, the handler guard, strings in and out, memory blocks, the cache of
// host entries and the trace's line limit.
#include <cstring>
#include <new>
#include <stdexcept>

#include "host/runtime/entries.h"
#include "plugin/debug_log.h"
#include "plugin/exceptions.h"
#include "plugin/handler_guard.h"
#include "plugin/host_strings.h"
#include "plugin/host_version.h"
#include "plugin/memory_blocks.h"
#include "plugin_test_support.h"

namespace plugin_test {
namespace {

using hostsim::Runtime;

class Bridge : public ::testing::Test {
protected:
    void SetUp() override
    {
        zqt::gResolver = &hostsim::ResolveEntry;
        zqt::rbversion_rbversion = host.Settings().version;
        zqt::DebuggingEnabled = 0;
    }
    void TearDown() override
    {
        zqt::DebuggingEnabled = 0;
        std::ostringstream report;
        EXPECT_TRUE(host.ReportAccounting(report)) << report.str();
    }

    Raised Take() { return TakeRaised(host); }

    hostsim::Host host;
};

TEST_F(Bridge, OutOfBoundsMessagesShowTheLargestAllowedValue)
{
    zqt::RaiseOutOfBoundsException(5, 10, 100, "Index", "Foo");
    Raised r = Take();
    EXPECT_EQ(r.className, "OutOfBoundsException");
    EXPECT_EQ(r.message, "The parameter Index to method Foo is too small. Range is 10 to 99, but value is 5.");
    EXPECT_EQ(r.errorNumber, 0);

    zqt::RaiseOutOfBoundsException(100, 0, 100, nullptr, nullptr);
    EXPECT_EQ(Take().message, "The parameter ?  is too big. Range is 0 to 99, but value is 100.");
}

struct EmptyTextException : std::exception {
    const char * what() const noexcept override { return ""; }
};

TEST_F(Bridge, StandardExceptionsBecomeTheClosestHostException)
{
    struct Case {
        void (*raise)();
        const char * className;
        const char * message;
    };
    const Case cases[] = {
        {[] { throw std::bad_alloc(); }, "OutOfMemoryException", "Failed to allocate memory: std::bad_alloc"},
        {[] { throw std::range_error("digits"); }, "OutOfBoundsException", "C++ reports range error: digits"},
        {[] { throw std::out_of_range(""); }, "OutOfBoundsException", "C++ reports range error."},
        {[] { throw std::overflow_error("big"); }, "OutOfBoundsException", "C++ reports overflow error: big"},
        {[] { throw std::underflow_error("small"); }, "OutOfBoundsException", "C++ reports underflow error: small"},
        {[] { throw std::invalid_argument("odd"); }, "RuntimeException", "C++ Exception: odd"},
        {[] { throw EmptyTextException(); }, "RuntimeException", "C++ Exception."},
    };
    for (const Case & c : cases) {
        RBInteger result = zqt::Guarded([&]() -> RBInteger {
            c.raise();
            return 1;
        });
        EXPECT_EQ(result, 0);
        Raised r = Take();
        EXPECT_EQ(r.className, c.className);
        EXPECT_EQ(r.message, c.message);
        EXPECT_EQ(r.errorNumber, 0);
    }
}

TEST_F(Bridge, AnythingElseThrownBecomesAnUnnamedRuntimeException)
{
    zqt::DebuggingEnabled = 1;
    REALobject result = reinterpret_cast<REALobject>(1);
    std::string trace = CapturedStandardError([&] {
        result = zqt::Guarded([]() -> REALobject { throw 42; });
    });
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(trace, "ZQT Debug: Unnamed C++ Exception.\n");
    Raised r = Take();
    EXPECT_EQ(r.className, "RuntimeException");
    EXPECT_EQ(r.message, "Sorry, but there was an unnamed C++ Exception.");
}

TEST_F(Bridge, AClassTheHostDoesNotKnowIsRaisedAsRuntimeException)
{
    zqt::RaiseException("NoSuchException", "kept text");
    Raised r = Take();
    EXPECT_EQ(r.className, "RuntimeException");
    EXPECT_EQ(r.message, "kept text");
    EXPECT_EQ(r.errorNumber, 0);
}

TEST_F(Bridge, StringsAreBuiltInTheEncodingTheirBytesAllow)
{
    struct Case {
        const char * bytes;
        uint32_t asked;
        uint32_t built;
    };
    const Case cases[] = {
        {"abc", kREALTextEncodingMacRoman, kREALTextEncodingASCII},
        {"a\xE9" "c", kREALTextEncodingMacRoman, kREALTextEncodingMacRoman},
        {"abc", kREALTextEncodingWindowsLatin1, kREALTextEncodingASCII},
        {"abc", kREALTextEncodingUTF8, kREALTextEncodingUTF8},
        {"abc", 0x1234, 0x1234},
    };
    for (bool olderHost : {false, true}) {
        zqt::rbversion_rbversion = olderHost ? 2011.0 : 2023.0;
        for (const Case & c : cases) {
            zqt::OwnedString s(zqt::REALBuildUnicodeString(c.bytes, static_cast<int64_t>(std::strlen(c.bytes)), c.asked));
            ASSERT_TRUE(s);
            EXPECT_EQ(Runtime::Bytes(s.get()), c.bytes);
            EXPECT_EQ(Runtime::EncodingOf(s.get()), c.built) << c.bytes;
        }
    }
    zqt::OwnedString fromUTF16(zqt::REALBuildUnicodeString("h\0i\0", 4, kREALTextEncodingUTF16));
    EXPECT_EQ(Runtime::Bytes(fromUTF16.get()), "hi");
    EXPECT_EQ(Runtime::EncodingOf(fromUTF16.get()), kREALTextEncodingUTF8);

    EXPECT_EQ(zqt::REALBuildUnicodeString("abc", 0, kREALTextEncodingUTF8), nullptr);
    EXPECT_EQ(zqt::REALBuildUnicodeString(nullptr, 3, kREALTextEncodingUTF8), nullptr);
    zqt::DebuggingEnabled = 1;
    std::string trace = CapturedStandardError([] {
        EXPECT_EQ(zqt::REALBuildUnicodeString("abc", int64_t(1) << 31, kREALTextEncodingUTF8), nullptr);
        zqt::OwnedString unknown(zqt::REALBuildUnicodeString("abc", 3, 0x1234));
    });
    EXPECT_EQ(trace,
              "ZQT Debug: Count too big for REALBuildUnicodeString.\n"
              "ZQT Debug: Unknown encoding in REALBuildUnicodeString 4660\n");
}

TEST_F(Bridge, AsciiTextIsReadInPlace)
{
    zqt::OwnedString s(host.runtime().NewString("12.5", kREALTextEncodingUTF8));
    zqt::rbText text(s.get());
    EXPECT_EQ(text.GetUTF8(), Runtime::Bytes(s.get()).data());
    EXPECT_EQ(text.GetASCII(), Runtime::Bytes(s.get()).data());
    EXPECT_EQ(text.UTF8Length(), 4);
}

TEST_F(Bridge, TextHandedOverWithoutATerminatorIsCopiedAndTerminated)
{
    host.Settings().terminateStringData = false;
    zqt::OwnedString s(host.runtime().NewString("\xC3\xA9t\xC3\xA9", kREALTextEncodingUTF8));
    zqt::DebuggingEnabled = 1;
    std::string trace = CapturedStandardError([&] {
        zqt::rbText text(s.get());
        const char * utf8 = text.GetUTF8();
        EXPECT_STREQ(utf8, "\xC3\xA9t\xC3\xA9");
        EXPECT_EQ(text.UTF8Length(), 5);
        EXPECT_NE(utf8, Runtime::Bytes(s.get()).data());
    });
    EXPECT_EQ(trace, "ZQT Debug: String is not zero terminated. Fixed.\n");
}

TEST_F(Bridge, TextTheHostCannotConvertReadsEmpty)
{
    zqt::OwnedString s(host.runtime().NewString("\xC3\xA9", kREALTextEncodingUTF8));
    zqt::DebuggingEnabled = 1;
    std::string trace = CapturedStandardError([&] {
        zqt::rbText text(s.get());
        EXPECT_STREQ(text.GetASCII(), "");
        EXPECT_STREQ(text.GetUTF8(), "\xC3\xA9");
    });
    EXPECT_EQ(trace, "ZQT Debug: REALGetStringData failed.\n");
    zqt::rbText none(nullptr);
    EXPECT_STREQ(none.GetUTF8(), "");
}

TEST_F(Bridge, MemoryBlocksAreMadeFilledAndViewed)
{
    const unsigned char bytes[] = {1, 2, 3, 250};
    zqt::OwnedObject block(zqt::REALBuildMemoryblock(bytes, sizeof bytes));
    ASSERT_TRUE(block);
    zqt::rbData view(block.get());
    ASSERT_EQ(view.size(), sizeof bytes);
    EXPECT_EQ(std::memcmp(view.bytes(), bytes, sizeof bytes), 0);
    EXPECT_EQ(zqt::rbData(nullptr).size(), 0u);
}

TEST_F(Bridge, AHostExceptionWhileMakingABlockBecomesOutOfMemory)
{
    zqt::DebuggingEnabled = 1;
    REALobject block = reinterpret_cast<REALobject>(1);
    std::string trace = CapturedStandardError([&] { block = zqt::REALBuildMemoryblock(nullptr, -1); });
    EXPECT_EQ(block, nullptr);
    EXPECT_EQ(trace, "ZQT Debug: Got C++ exception in REALBuildMemoryblock:  A MemoryBlock cannot have a negative size (-1).\n");
    Raised r = Take();
    EXPECT_EQ(r.className, "OutOfMemoryException");
    EXPECT_EQ(r.message, "Failed to allocate a memoryblock with -1 bytes in size.");
}

TEST_F(Bridge, TraceLinesAreCutToTheirBuffer)
{
    std::string longText(5000, 'a');
    std::string trace = CapturedStandardError([&] { zqt::LogMessageX("%s", longText.c_str()); });
    EXPECT_EQ(trace, std::string(4095, 'a') + "\n");
}

int gAsked = 0;
bool gProvides = false;
RBInteger Answer() { return 7; }
void * CountingResolver(const char *)
{
    ++gAsked;
    return gProvides ? reinterpret_cast<void *>(&Answer) : nullptr;
}

TEST(HostEntries, AMissingEntryIsAskedForAgainAndAFoundOneIsKept)
{
    zqt::gResolver = &CountingResolver;
    zqt::HostEntry slot{"Answer", nullptr};
    using AnswerProc = RBInteger (*)();
    EXPECT_EQ(zqt::CallHost<AnswerProc>(slot), 0);
    EXPECT_EQ(zqt::CallHost<AnswerProc>(slot), 0);
    EXPECT_EQ(gAsked, 2);
    gProvides = true;
    EXPECT_EQ(zqt::CallHost<AnswerProc>(slot), 7);
    EXPECT_EQ(zqt::CallHost<AnswerProc>(slot), 7);
    EXPECT_EQ(gAsked, 3);
    zqt::gResolver = nullptr;
    zqt::HostEntry unresolved{"Answer", nullptr};
    EXPECT_EQ(zqt::CallHost<AnswerProc>(unresolved), 0);
    EXPECT_EQ(gAsked, 3);
}

} // namespace
} // namespace plugin_test
