#include "plugin/host_strings.h"

#include <cstdlib>
#include <cstring>

#include "plugin/debug_log.h"
#include "plugin/handler_guard.h"
#include "plugin/host_version.h"
#include "sdk/encodings.h"

namespace zqt {

namespace {

// Host strings count their bytes in a 32-bit int.
const int64_t kMaxStringBytes = int64_t(1) << 31;
const unsigned char kFirstNonAsciiByte = 0x80;
// Zero bytes after a private copy of a text that came without a terminator.
const size_t kCopySlack = 4;
// Marks both ends of an rbText, so that it can tell that it is intact.
const uint32_t kTextMarker = uint32_t('Z') << 24 | uint32_t('Q') << 16 | uint32_t('T') << 8 | uint32_t('T');

const char * const kCountTooBigLog = "Count too big for REALBuildUnicodeString.";
const char * const kUnknownEncodingLog = "Unknown encoding in REALBuildUnicodeString";
const char * const kUTF16OutOfMemoryLog = "Out of memory in REALBuildUnicodeStringUTF16.";
const char * const kStringDataFailedLog = "REALGetStringData failed.";
const char * const kNotTerminatedLog = "String is not zero terminated. Fixed.";
const char * const kOutOfMemoryLog = "Out of memory";

bool AllAscii(const void * bytes, size_t count)
{
    const auto * b = static_cast<const unsigned char *>(bytes);
    for (size_t i = 0; i < count; ++i)
        if (b[i] >= kFirstNonAsciiByte)
            return false;
    return true;
}

void Log(const char * text)
{
    if (DebuggingEnabled)
        LogMessageX("%s%s", kLogPrefix, text);
}

// Older hosts build a string without an encoding and tag it afterwards.
REALstring BuildTagged(const char * bytes, int count, uint32_t encoding)
{
    if (rbversion_rbversion >= kHostBuildsStringsWithEncoding)
        return REALBuildStringWithEncoding(bytes, count, encoding);
    REALstring s = originalREALBuildString(bytes, count);
    if (s)
        REALSetStringEncoding(s, encoding);
    return s;
}

REALstring BuildFromUTF16(const char * bytes, int count)
{
    OwnedString utf16(BuildTagged(bytes, count, kREALTextEncodingUTF16));
    if (!utf16) {
        if (rbversion_rbversion < kHostBuildsStringsWithEncoding)
            Log(kUTF16OutOfMemoryLog);
        return nullptr;
    }
    return REALConvertString(utf16.get(), kREALTextEncodingUTF8);
}

} // namespace

REALstring REALBuildUnicodeString(const void * bytes, int64_t count, uint32_t encoding)
{
    return Guarded([&]() -> REALstring {
        if (!bytes || count < 1)
            return nullptr;
        if (count >= kMaxStringBytes) {
            Log(kCountTooBigLog);
            return nullptr;
        }
        const char * text = static_cast<const char *>(bytes);
        int length = static_cast<int>(count);
        switch (encoding) {
        case kREALTextEncodingUTF8:
        case kREALTextEncodingASCII:
            break;
        case kREALTextEncodingMacRoman:
        case kREALTextEncodingLatin1:
        case kREALTextEncodingWindowsLatin1:
        case kREALTextEncodingUnknown:
            if (AllAscii(bytes, static_cast<size_t>(count)))
                encoding = kREALTextEncodingASCII;
            break;
        case kREALTextEncodingUTF16:
            return BuildFromUTF16(text, length);
        default:
            if (DebuggingEnabled)
                LogMessageX("%s%s %u", kLogPrefix, kUnknownEncodingLog, static_cast<unsigned>(encoding));
            break;
        }
        return BuildTagged(text, length, encoding);
    });
}

rbText::rbText(REALstring s)
    : startMarker_(kTextMarker), string_(nullptr), encoding_(kREALTextEncodingASCII),
      ascii_state_(kAsciiUnchecked), hostBytes_(nullptr), hostLength_(0), utf8_(), ascii_(), empty_(),
      endMarker_(kTextMarker)
{
    utf8_.length = -1;
    ascii_.length = -1;
    if (s) {
        REALLockString(s);
        string_.reset(s);
        encoding_ = REALGetStringEncoding(s);
    }
}

rbText::~rbText()
{
    Clear(utf8_);
    Clear(ascii_);
}

bool rbText::Intact() const
{
    return startMarker_ == kTextMarker && endMarker_ == kTextMarker;
}

void rbText::Clear(View & view)
{
    if (view.holdsData)
        REALDisposeStringData(&view.data);
    std::free(view.copy);
    view = View();
    view.length = -1;
}

void rbText::CheckASCII()
{
    if (ascii_state_ != kAsciiUnchecked)
        return;
    size_t length = 0;
    const char * bytes = REALGetStringContents(string_.get(), &length);
    if (!bytes) {
        // Without the host's bytes there is nothing to read: the text is empty.
        bytes = empty_;
        length = 0;
    }
    if (!AllAscii(bytes, length)) {
        ascii_state_ = kAsciiNot; // the host converts
        return;
    }
    ascii_state_ = kAsciiOnly;
    hostBytes_ = bytes;
    hostLength_ = static_cast<int64_t>(length);
}

const char * rbText::GetView(View & view, uint32_t encoding)
{
    if (!Intact())
        return "";
    if (view.length >= 0)
        return view.bytes;
    view.bytes = empty_;
    view.length = 0;
    if (string_)
        CheckASCII();
    if (ascii_state_ == kAsciiOnly) {
        // Text of ASCII bytes reads the same in every encoding: both views share the host's.
        view.bytes = hostBytes_;
        view.length = hostLength_;
    } else if (REALGetStringData(string_.get(), encoding, &view.data)) {
        view.holdsData = true;
        if (view.data.data) {
            view.bytes = static_cast<const char *>(view.data.data);
            view.length = static_cast<int64_t>(view.data.length);
        }
    } else {
        Log(kStringDataFailedLog);
    }
    EnsureTerminated(view);
    return view.bytes;
}

void rbText::EnsureTerminated(View & view)
{
    if (view.length <= 0 || view.bytes[view.length] == '\0')
        return;
    Log(kNotTerminatedLog);
    size_t length = static_cast<size_t>(view.length);
    view.copy = static_cast<char *>(std::calloc(length + kCopySlack, 1));
    if (!view.copy) {
        Log(kOutOfMemoryLog);
        view.bytes = empty_;
        view.length = 0;
        return;
    }
    std::memcpy(view.copy, view.bytes, length);
    view.bytes = view.copy;
}

} // namespace zqt
