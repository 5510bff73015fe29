#include "host/runtime/runtime.h"

#include <cstring>
#include <new>
#include <stdexcept>

#include "host/framework/framework.h"
#include "host/lang/lexer.h"
#include "host/runtime/entries.h"
#include "sdk/encodings.h"

namespace hostsim {

namespace {

Runtime * gCurrent = nullptr;
const std::align_val_t kObjectAlignment{16};

using ObjectProc = void (*)(REALobject);

} // namespace

Runtime::Runtime(HostSettings s) : settings(s), native_(MakeNativeCaller())
{
    if (gCurrent)
        throw std::logic_error("only one simulated host can exist at a time");
    gCurrent = this;
}

Runtime::~Runtime()
{
    if (pending_) {
        REALobject e = pending_;
        pending_ = nullptr;
        UnlockObject(e, "the end of the run");
    }
    gCurrent = nullptr;
}

Runtime * Runtime::Current()
{
    return gCurrent;
}

void Runtime::DestroyString(void * p)
{
    delete static_cast<REALstringStruct *>(p);
}

void Runtime::DestroyObject(void * p)
{
    static_cast<REALobjectStruct *>(p)->~REALobjectStruct();
    ::operator delete(p, kObjectAlignment);
}

REALstring Runtime::NewString(std::string bytes, uint32_t encoding)
{
    auto * s = new REALstringStruct;
    s->bytes = std::move(bytes);
    s->encoding = encoding;
    accounting.Born(s, ResourceKind::String, &DestroyString);
    return s;
}

bool Runtime::ValidString(REALstring s, const char * entry)
{
    return !s || accounting.CheckAlive(s, ResourceKind::String, entry);
}

void Runtime::LockString(REALstring s, const char * entry)
{
    if (s && accounting.CheckAlive(s, ResourceKind::String, entry))
        ++s->refs;
}

void Runtime::UnlockString(REALstring s, const char * entry)
{
    if (!s || !accounting.CheckAlive(s, ResourceKind::String, entry))
        return;
    if (--s->refs == 0)
        accounting.Died(s);
}

const std::string & Runtime::Bytes(REALstring s)
{
    static const std::string kEmpty;
    return s ? s->bytes : kEmpty;
}

uint32_t Runtime::EncodingOf(REALstring s)
{
    return s ? s->encoding : kREALTextEncodingUTF8;
}

REALobject Runtime::NewObject(const ClassInfo & cls)
{
    void * memory = ::operator new(cls.objectSize, kObjectAlignment);
    std::memset(memory, 0, cls.objectSize);
    auto * o = new (memory) REALobjectStruct;
    o->cls = &cls;
    accounting.Born(o, ResourceKind::Object, &DestroyObject);
    std::vector<const ClassInfo *> chain;
    for (const ClassInfo * c = &cls; c; c = c->super)
        chain.insert(chain.begin(), c);
    for (const ClassInfo * c : chain) {
        if (c->initializer) {
            Accounting::Scope scope(accounting, c->name + " initializer");
            reinterpret_cast<ObjectProc>(c->initializer)(o);
        }
    }
    return o;
}

bool Runtime::ValidObject(REALobject o, const char * entry)
{
    return !o || accounting.CheckAlive(o, ResourceKind::Object, entry);
}

void Runtime::LockObject(REALobject o, const char * entry)
{
    if (o && accounting.CheckAlive(o, ResourceKind::Object, entry))
        ++o->refs;
}

void Runtime::UnlockObject(REALobject o, const char * entry)
{
    if (!o || !accounting.CheckAlive(o, ResourceKind::Object, entry))
        return;
    if (--o->refs == 0)
        Finalize(o);
}

void Runtime::Finalize(REALobject o)
{
    // The finalizers may pass the object to host entries; it stays alive for them.
    o->refs = 1;
    for (const ClassInfo * c = o->cls; c; c = c->super) {
        if (c->finalizer) {
            Accounting::Scope scope(accounting, c->name + " finalizer");
            reinterpret_cast<ObjectProc>(c->finalizer)(o);
        }
    }
    if (o->refs != 1)
        accounting.Fault("the finalizer of " + o->cls->name + " left the object with " +
                         std::to_string(o->refs - 1) + " new references; it is released anyway");
    o->refs = 0;
    accounting.Died(o);
}

void * Runtime::ClassData(REALobject o, const ClassInfo & cls)
{
    return reinterpret_cast<char *>(o) + cls.dataOffset;
}

const ClassInfo * Runtime::FindClass(std::string_view name) const
{
    auto it = byName_.find(LowerCase(name));
    return it == byName_.end() ? nullptr : it->second;
}

ClassInfo & Runtime::AddClass(std::unique_ptr<ClassInfo> cls)
{
    ClassInfo & c = *cls;
    byName_[LowerCase(c.name)] = &c;
    order_.push_back(&c);
    classes_.push_back(std::move(cls));
    return c;
}

bool Runtime::ValidClassRef(REALclassRef c) const
{
    for (const ClassInfo * k : order_)
        if (ToClassRef(k) == c)
            return true;
    return false;
}

const ClassInfo & Runtime::Framework(std::string_view name) const
{
    const ClassInfo * c = FindClass(name);
    if (!c)
        throw std::logic_error("the framework class " + std::string(name) + " is missing");
    return *c;
}

void Runtime::Raise(REALobject exception)
{
    if (!exception || !ValidObject(exception, "RuntimeRaiseException"))
        return;
    if (!exception->cls->IsA(&Framework(kRuntimeExceptionClassName))) {
        accounting.Fault("RuntimeRaiseException was given an object of class " + exception->cls->name +
                         ", which is not a RuntimeException, in " + accounting.CurrentContext());
        return;
    }
    if (pending_) {
        Report(Diagnostic::Level::Warning, "a second exception (" + exception->cls->name +
               ") was raised while one was pending, in " + accounting.CurrentContext() + "; the first is kept");
        return;
    }
    LockObject(exception, "RuntimeRaiseException");
    pending_ = exception;
}

REALobject Runtime::TakePending()
{
    REALobject e = pending_;
    pending_ = nullptr;
    return e;
}

void Runtime::RestorePending(REALobject owned)
{
    if (pending_)
        UnlockObject(owned, "an exception handler");
    else
        pending_ = owned;
}

void * Runtime::Resolve(const char * name)
{
    if (!name)
        return nullptr;
    requested_.emplace_back(name);
    if (IsHidden(name))
        return nullptr;
    return FindEntry(name);
}

void Runtime::Report(Diagnostic::Level level, const std::string & text)
{
    diagnostics_.push_back({level, text});
}

bool Runtime::HasErrors() const
{
    for (const Diagnostic & d : diagnostics_)
        if (d.level == Diagnostic::Level::Error)
            return true;
    return false;
}

} // namespace hostsim
