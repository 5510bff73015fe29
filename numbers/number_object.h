// A number object: a host object whose class data is one owned pointer (`ref`) to its
// value. `ref` is nil before a constructor ran and after the destructor. A value is
// copied whole and never shared between objects; operations never change their
// receiver but return a new object.
#pragma once

#include <cstring>
#include <memory>

#include "plugin/host_services.h"
#include "plugin/owned.h"
#include "sdk/records.h"

namespace zqt {

// The class data of a number object.
struct NumberData {
    void * ref;
};

template <class Traits>
class NumberObject {
public:
    using Value = typename Traits::Value;
    static constexpr const char * kName = Traits::kName;

    // The class's registration record; the host writes the offset of the class data into it.
    static REALclassDefinition & Record();

    // The object's own value, or nil for a nil object or one without a value.
    static Value * Ref(REALobject o)
    {
        if (!o)
            return nullptr;
        void * ref;
        std::memcpy(&ref, Data(o), sizeof ref);
        return static_cast<Value *>(ref);
    }

    // The value an argument stands for: its own, or the static zero for nil.
    static const Value & ValueOf(REALobject o)
    {
        const Value * v = Ref(o);
        return v ? *v : kZero;
    }

    // The value that every nil number stands for: zero and NaN flags both set, all
    // words zero. Its NaN flag makes arithmetic with a nil operand fail.
    static Value ZeroWithNan()
    {
        Value v;
        v.SetZero();
        v.SetNan();
        return v;
    }
    static inline const Value kZero = ZeroWithNan();

    // Replaces the object's value with a copy of `value`; the new one is made first.
    static void SetRef(REALobject me, const Value & value)
    {
        std::unique_ptr<Value> fresh(new Value(value));
        Value * old = Ref(me);
        Store(me, fresh.release());
        delete old;
    }

    // Releases the object's value; the object is empty afterwards.
    static void ReleaseRef(REALobject me)
    {
        Value * old = Ref(me);
        Store(me, nullptr);
        delete old;
    }

    // A new object of the class holding a copy of `value`, or nil when the host cannot
    // make one.
    static REALobject NewBigNumberZQT(const Value & value)
    {
        OwnedObject object(REALnewInstance(kName));
        if (!object)
            return nullptr;
        SetRef(object.get(), value); // releases what the host's construction left there
        return object.release();
    }

private:
    static void * Data(REALobject o) { return reinterpret_cast<char *>(o) + Record().forSystemUse; }
    static void Store(REALobject o, Value * ref)
    {
        void * raw = ref;
        std::memcpy(Data(o), &raw, sizeof raw);
    }
};

} // namespace zqt
