// RuntimeException and its subclasses: Message and ErrorNumber live in the object's
// data and are read and written by the host directly.
#include <cstddef>

#include "host/framework/framework.h"
#include "host/runtime/registration.h"
#include "sdk/encodings.h"
#include "sdk/flags.h"

namespace hostsim {

const char * const kRuntimeExceptionClassName = "RuntimeException";
const char * const kMessagePropertyName = "Message";
const char * const kNilObjectExceptionClassName = "NilObjectException";
const char * const kOutOfBoundsExceptionClassName = "OutOfBoundsException";
const char * const kTypeMismatchExceptionClassName = "TypeMismatchException";
const char * const kUnsupportedOperationExceptionClassName = "UnsupportedOperationException";

namespace {

struct ExceptionData {
    REALstring message;
    RBInteger errorNumber;
};

ExceptionData & DataOf(REALobject e)
{
    Runtime * rt = Runtime::Current();
    return *static_cast<ExceptionData *>(Runtime::ClassData(e, rt->Framework(kRuntimeExceptionClassName)));
}

void Construct(REALobject self, REALstring message, RBInteger errorNumber)
{
    Runtime * rt = Runtime::Current();
    ExceptionData & d = DataOf(self);
    rt->LockString(message, "RuntimeException.Constructor");
    rt->UnlockString(d.message, "RuntimeException.Constructor");
    d.message = message;
    d.errorNumber = errorNumber;
}

void Finalize(REALobject self)
{
    ExceptionData & d = DataOf(self);
    Runtime::Current()->UnlockString(d.message, "RuntimeException finalizer");
    d.message = nullptr;
}

REALproperty gProperties[] = {
    {nullptr, kMessagePropertyName, "String", REALTargetAll, REALstandardGetter, REALstandardSetter,
     offsetof(ExceptionData, message), nullptr, 0, nullptr, 0, nullptr},
    {nullptr, "ErrorNumber", "Integer", REALTargetAll, REALstandardGetter, REALstandardSetter,
     offsetof(ExceptionData, errorNumber), nullptr, 0, nullptr, 0, nullptr},
};

REALmethodDefinition gMethods[] = {
    {reinterpret_cast<REALproc>(&Construct), nullptr,
     "Constructor(message As String = \"\", errorNumber As Integer = 0)", REALTargetAll, 0, nullptr},
};

REALclassDefinition gRuntimeException = [] {
    REALclassDefinition d{};
    d.version = kControlVersionNewest;
    d.name = kRuntimeExceptionClassName;
    d.dataSize = sizeof(ExceptionData);
    d.destructor = reinterpret_cast<REALproc>(&Finalize);
    d.properties = gProperties;
    d.propertyCount = sizeof gProperties / sizeof gProperties[0];
    d.methods = gMethods;
    d.methodCount = sizeof gMethods / sizeof gMethods[0];
    d.mFlags = REALTargetAll;
    return d;
}();

const char * const kSubclassNames[] = {
    kNilObjectExceptionClassName,
    kOutOfBoundsExceptionClassName,
    "OutOfMemoryException",
    kUnsupportedOperationExceptionClassName,
    kTypeMismatchExceptionClassName,
    "InvalidArgumentException",
    "StackOverflowException",
};
const size_t kSubclassCount = sizeof kSubclassNames / sizeof kSubclassNames[0];
REALclassDefinition gSubclasses[kSubclassCount];

} // namespace

void RegisterExceptionClasses(Runtime & rt)
{
    RegisterClass(rt, &gRuntimeException, kFrameworkOrigin);
    for (size_t i = 0; i < kSubclassCount; ++i) {
        REALclassDefinition & d = gSubclasses[i];
        d = REALclassDefinition{};
        d.version = kControlVersionNewest;
        d.name = kSubclassNames[i];
        d.superName = kRuntimeExceptionClassName;
        d.mFlags = REALTargetAll;
        RegisterClass(rt, &d, kFrameworkOrigin);
    }
}

void RaiseHostException(Runtime & rt, const char * className, const std::string & message)
{
    const ClassInfo * cls = rt.FindClass(className);
    if (!cls)
        cls = &rt.Framework(kRuntimeExceptionClassName);
    Value e = Value::AdoptObject(TypeRef::OfClass(cls->name), rt.NewObject(*cls));
    DataOf(e.object()).message = rt.NewString(message, kREALTextEncodingUTF8);
    rt.Raise(e.object());
}

std::string ExceptionMessage(REALobject exception)
{
    return Runtime::Bytes(DataOf(exception).message);
}

} // namespace hostsim
