// How the test plugin reaches the host: every service by name through the resolver,
// and small helpers over the ones it uses most.
#pragma once

#include <string>

#include "sdk/encodings.h"
#include "sdk/host_entries.h"

extern REALresolver gResolver;

template <class Proc>
Proc HostEntry(const char * name)
{
    return reinterpret_cast<Proc>(gResolver(name));
}

REALstring NewString(const std::string & utf8);
std::string Utf8Of(REALstring s);
void Unlock(REALstring s);
void Unlock(REALobject o);
REALstring Locked(REALstring s);
REALobject Locked(REALobject o);
// Raises a new exception of `className` with `message` and error number `number`.
void Raise(const char * className, const std::string & message, RBInteger number);
