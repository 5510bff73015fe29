#include "host/runtime/accounting.h"

#include <algorithm>
#include <cstdio>

#include "host/runtime/class_info.h"
#include "host/runtime/handles.h"

namespace hostsim {

namespace {

// Released resources kept before their memory is given back.
const size_t kQuarantineLimit = size_t(1) << 16;
// Bytes of a leaked string shown in a report.
const size_t kShownStringBytes = 40;

std::string Shown(const std::string & bytes)
{
    std::string out = "\"";
    for (size_t i = 0; i < bytes.size() && i < kShownStringBytes; ++i) {
        unsigned char c = static_cast<unsigned char>(bytes[i]);
        const unsigned char kFirstPrintable = 0x20;
        if (c < kFirstPrintable || c == '"') {
            char buffer[8];
            std::snprintf(buffer, sizeof buffer, "\\x%02X", c);
            out += buffer;
        } else {
            out += static_cast<char>(c);
        }
    }
    if (bytes.size() > kShownStringBytes)
        out += "...";
    return out + "\"";
}

} // namespace

const char * ResourceName(ResourceKind kind)
{
    switch (kind) {
    case ResourceKind::String: return "string";
    case ResourceKind::Object: return "object";
    case ResourceKind::StringData: return "string-data record";
    }
    return "resource";
}

Accounting::~Accounting()
{
    for (auto & [p, e] : entries_)
        e.destroy(const_cast<void *>(p));
}

void Accounting::Born(void * p, ResourceKind kind, Destroy destroy)
{
    auto old = entries_.find(p);
    if (old != entries_.end()) // memory of a resource that left quarantine, reused
        entries_.erase(old);
    entries_.emplace(p, Entry{kind, nextSerial_++, true, destroy, CurrentContext(), {}, {}});
}

bool Accounting::CheckAlive(const void * p, ResourceKind kind, const char * entry)
{
    auto it = entries_.find(p);
    if (it == entries_.end() || it->second.kind != kind) {
        char buffer[64];
        std::snprintf(buffer, sizeof buffer, "%p", p);
        std::string what = kind == ResourceKind::Object ? "an object" : std::string("a ") + ResourceName(kind);
        Fault(std::string(entry) + " was given " + buffer + ", which is not " + what + " of this host, in " +
              CurrentContext());
        return false;
    }
    if (!it->second.alive) {
        const Entry & e = it->second;
        std::string last = e.pluginReleasedIn.empty() || e.pluginReleasedIn == e.releasedIn
                               ? "" : " (last released by plugin code in " + e.pluginReleasedIn + ")";
        Fault(std::string(entry) + " on " + Describe(p, e) + ", released already in " + e.releasedIn + last +
              ", in " + CurrentContext());
        return false;
    }
    return true;
}

void Accounting::Died(void * p)
{
    auto it = entries_.find(p);
    if (it == entries_.end())
        return;
    it->second.alive = false;
    it->second.releasedIn = CurrentContext();
    quarantine_.push_back(p);
    if (quarantine_.size() > kQuarantineLimit) {
        void * oldest = quarantine_.front();
        quarantine_.pop_front();
        auto gone = entries_.find(oldest);
        gone->second.destroy(oldest);
        entries_.erase(gone);
    }
}

void Accounting::NotePluginRelease(const void * p)
{
    auto it = entries_.find(p);
    if (it != entries_.end() && it->second.alive)
        it->second.pluginReleasedIn = CurrentContext();
}

void Accounting::Fault(const std::string & text)
{
    faults_.push_back(text);
}

std::string Accounting::Describe(const void * p, const Entry & e) const
{
    std::string text = std::string(ResourceName(e.kind)) + " #" + std::to_string(e.serial);
    if (e.kind == ResourceKind::String)
        text += " " + Shown(static_cast<const REALstringStruct *>(p)->bytes);
    else if (e.kind == ResourceKind::Object)
        text += " of class " + static_cast<const REALobjectStruct *>(p)->cls->name;
    return text + " made in " + e.madeIn;
}

std::vector<std::string> Accounting::Leaks() const
{
    std::vector<std::pair<uint64_t, std::string>> found;
    for (const auto & [p, e] : entries_)
        if (e.alive)
            found.emplace_back(e.serial, Describe(p, e));
    std::sort(found.begin(), found.end());
    std::vector<std::string> lines;
    for (auto & f : found)
        lines.push_back(std::move(f.second));
    return lines;
}

size_t Accounting::LiveCount(ResourceKind kind) const
{
    size_t n = 0;
    for (const auto & [p, e] : entries_)
        if (e.alive && e.kind == kind)
            ++n;
    return n;
}

std::string Accounting::CurrentContext() const
{
    if (!contexts_.empty())
        return contexts_.back();
    if (scriptLine_ > 0)
        return "script line " + std::to_string(scriptLine_);
    return "the host";
}

} // namespace hostsim
