#pragma once
#include "platform/win32/windows_api.h"
#include <oaidl.h>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tolva::win32 {

class DispatchArguments;

// A value type as the type library declares it. Colours are the OLE_COLOR alias; an
// enumeration is a 32-bit value of the named enum type; an object is an IDispatch handed out.
enum class OleType { Void, Bool, Int16, Int32, Float, Double, Currency, Date, String, Color, Font, Variant, Object };

struct TypeSpec {
    OleType type = OleType::Void;
    const wchar_t* enumName = nullptr; // the enum type of an Int32, if it is one
    bool byReference = false; // a parameter [in, out]: the callee's value goes back to the caller
    bool optional = false; // a parameter that may be left out
    std::optional<int32_t> defaultValue = std::nullopt; // what an optional one left out stands for; else the type's default
};

constexpr TypeSpec Enum(const wchar_t* name)
{
    return { OleType::Int32, name };
}

// What a binding table's entries are called on: the COM object that serves a C++ object (a
// control object its core control, a BoundDispatch itself).
class BindingTarget {
public:
    // The object the binding table was made for.
    virtual void* BoundObject() = 0;

protected:
    ~BindingTarget() = default;
};

// Reads a property or calls a method; result is empty on entry.
using MemberGetter = void (*)(BindingTarget& target, const DispatchArguments& arguments, VARIANT& result);
// Assigns a property from arguments.Value().
using MemberSetter = void (*)(BindingTarget& target, const DispatchArguments& arguments);

// One entry of a binding table: what a dispatch id does.
struct DispatchMember {
    DISPID id = DISPID_UNKNOWN;
    const wchar_t* name = L"";
    bool isMethod = false;
    TypeSpec type; // a property's type, a method's result
    std::vector<TypeSpec> parameters; // a method's parameters, a property's index arguments
    // The number of parameters a caller must pass: those before the first optional one.
    size_t RequiredParameters() const;
    MemberGetter get = nullptr; // property get, or the method itself
    MemberSetter let = nullptr; // assignment of a value (propput)
    MemberSetter set = nullptr; // assignment of an object reference (propputref)
};

// Lookups in a binding table; names compare without regard to case.
const DispatchMember* FindMember(std::span<const DispatchMember> members, DISPID id);
const DispatchMember* FindMember(std::span<const DispatchMember> members, const wchar_t* name);

} // namespace tolva::win32
