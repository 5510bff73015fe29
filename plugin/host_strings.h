// Host strings: building them from bytes in a stated encoding, and reading one as
// NUL-terminated UTF-8 or ASCII bytes.
#pragma once

#include <cstdint>

#include "plugin/owned.h"
#include "sdk/encodings.h"
#include "sdk/records.h"

namespace zqt {

// A new host string (owned by the caller) from `count` bytes in `encoding`. 8-bit
// encodings become ASCII when every byte allows it; UTF-16 comes back converted to
// UTF-8. Null for no bytes, for a count of 2^31 or more, or when the host cannot build it.
REALstring REALBuildUnicodeString(const void * bytes, int64_t count, uint32_t encoding);

// A view of one host string as bytes. The returned bytes live as long as the view and
// are always NUL-terminated; a text of ASCII bytes is read in place, without a copy.
class rbText {
public:
    explicit rbText(REALstring s);
    ~rbText();
    rbText(const rbText &) = delete;
    rbText & operator=(const rbText &) = delete;

    const char * GetUTF8() { return GetView(utf8_, kREALTextEncodingUTF8); }
    const char * GetASCII() { return GetView(ascii_, kREALTextEncodingASCII); }
    // The byte counts of the views, without the terminating NUL.
    int64_t UTF8Length() { GetUTF8(); return utf8_.length; }
    int64_t ASCIILength() { GetASCII(); return ascii_.length; }

private:
    enum AsciiState : int { kAsciiOnly = 1, kAsciiUnchecked = 2, kAsciiNot = 3 };

    struct View {
        const char * bytes;
        int64_t length;       // negative until the view is computed
        REALstringData data;  // the host's bytes when it had to convert
        bool holdsData;
        char * copy;          // a terminated private copy
    };

    const char * GetView(View & view, uint32_t encoding);
    void CheckASCII();
    void EnsureTerminated(View & view);
    void Clear(View & view);
    bool Intact() const;

    uint32_t startMarker_;
    OwnedString string_;
    uint32_t encoding_;
    AsciiState ascii_state_;
    const char * hostBytes_;  // the host's own bytes, once known to be ASCII
    int64_t hostLength_;
    View utf8_;
    View ascii_;
    char empty_[1];
    uint32_t endMarker_;
};

} // namespace zqt
