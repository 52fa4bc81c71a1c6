#pragma once
#include "core/variant.h"
#include <initializer_list>
#include <vector>

namespace tolva {

// A selected control as a property page reaches it: late-bound, by member name, the way the
// designer's list of selected controls hands it over. A missing argument is an empty Variant
// (the member's own default); the control's errors come back as AutomationError.
class PageTarget {
public:
    virtual ~PageTarget() = default;

    virtual Variant Get(StringView name, const std::vector<Variant>& indexes) = 0;
    virtual void Put(StringView name, const std::vector<Variant>& indexes, const Variant& value) = 0;
    virtual void Call(StringView name, const std::vector<Variant>& arguments) = 0;

    Variant Read(StringView name) { return Get(name, {}); }
    Variant ReadAt(StringView name, int32_t index) { return Get(name, { Variant(index) }); }
    void Write(StringView name, const Variant& value) { Put(name, {}, value); }
    void WriteAt(StringView name, int32_t index, const Variant& value) { Put(name, { Variant(index) }, value); }
};

} // namespace tolva
