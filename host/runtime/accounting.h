// Counts every string, object and string-data record the host hands out. A released
// one is kept (not reused) for a while, so that a later use of it is recognised and
// reported with the call that made it, instead of touching freed memory.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

namespace hostsim {

enum class ResourceKind { String, Object, StringData };

class Accounting {
public:
    using Destroy = void (*)(void *);

    Accounting() = default;
    Accounting(const Accounting &) = delete;
    Accounting & operator=(const Accounting &) = delete;
    ~Accounting();

    void Born(void * p, ResourceKind kind, Destroy destroy);
    // True when `p` is a live resource of `kind`. Otherwise records a fault naming
    // `entry` (the entry or action that used it) and the current call, and answers false.
    bool CheckAlive(const void * p, ResourceKind kind, const char * entry);
    // The resource was released for good: keep its memory quarantined.
    void Died(void * p);
    // Plugin code is dropping a reference to `p`: remembered to explain a later fault.
    void NotePluginRelease(const void * p);

    void Fault(const std::string & text);
    const std::vector<std::string> & Faults() const { return faults_; }
    // One line for every resource still alive.
    std::vector<std::string> Leaks() const;
    size_t LiveCount(ResourceKind kind) const;

    // Where the host is: the handler being called, or the script line.
    class Scope {
    public:
        Scope(Accounting & a, std::string where) : a_(a) { a_.contexts_.push_back(std::move(where)); }
        ~Scope() { a_.contexts_.pop_back(); }
        Scope(const Scope &) = delete;
        Scope & operator=(const Scope &) = delete;

    private:
        Accounting & a_;
    };
    void SetScriptLine(int line) { scriptLine_ = line; }
    std::string CurrentContext() const;

private:
    struct Entry {
        ResourceKind kind;
        uint64_t serial;
        bool alive;
        Destroy destroy;
        std::string madeIn;
        std::string releasedIn;
        std::string pluginReleasedIn;
    };
    std::string Describe(const void * p, const Entry & e) const;

    std::unordered_map<const void *, Entry> entries_;
    std::deque<void *> quarantine_;
    std::vector<std::string> faults_;
    std::vector<std::string> contexts_;
    int scriptLine_ = 0;
    uint64_t nextSerial_ = 1;
};

const char * ResourceName(ResourceKind kind);

} // namespace hostsim
