#pragma once
#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/dispatch_member.h"
#include "platform/win32/windows_api.h"
#include <cstddef>
#include <oaidl.h>
#include <span>

namespace tolva::win32 {

// A refused argument: the HRESULT and the argument's index in DISPPARAMS for puArgErr.
class ArgumentError : public ComError {
public:
    ArgumentError(HRESULT hr, UINT dispatchIndex)
        : ComError(hr)
        , m_index(dispatchIndex)
    { }
    UINT DispatchIndex() const { return m_index; }

private:
    UINT m_index;
};

// The arguments of one Invoke in the caller's order (DISPPARAMS holds them last first). For a
// property assignment the assigned value is apart from the positional (index) arguments. An
// optional parameter that the caller left out, at the end or as a missing argument, takes its
// default value, or the type's default when it has none.
class DispatchArguments {
public:
    DispatchArguments(const DISPPARAMS& params, bool assignment, std::span<const TypeSpec> parameters);

    size_t Count() const { return m_count; }
    // Whether argument index was given (optional ones may be left out or passed as missing).
    // A reference without its target throws an ArgumentError naming the argument.
    bool Has(size_t index) const;
    // Whether argument index is there but passed as missing; guarded as Has.
    bool IsPassedAsMissing(size_t index) const;
    const VARIANT& At(size_t index) const { return m_params.rgvarg[DispatchIndex(index)]; }
    const VARIANT& Value() const { return m_params.rgvarg[0]; } // assignments only

    UINT DispatchIndex(size_t index) const { return UINT(m_params.cArgs - 1 - index); }

    // Converts argument index (or the assigned value) with convert; a refusal becomes an
    // ArgumentError naming that argument.
    template <class F> auto Convert(size_t index, F&& convert) const
    {
        if (!Has(index)) {
            if (!m_parameters[index].defaultValue)
                return decltype(convert(At(index))) {};
            VARIANT standIn;
            V_VT(&standIn) = VT_I4;
            V_I4(&standIn) = m_parameters[index].defaultValue.value();
            return convert(standIn);
        }
        return Guard(DispatchIndex(index), [&] { return convert(At(index)); });
    }
    template <class F> auto ConvertValue(F&& convert) const
    {
        return Guard(0, [&] { return convert(Value()); });
    }

private:
    template <class Body> static auto Guard(UINT dispatchIndex, Body&& body)
    {
        try {
            return body();
        } catch (const ComError& e) {
            throw ArgumentError(e.Result(), dispatchIndex);
        }
    }

    const DISPPARAMS& m_params;
    size_t m_count;
    std::span<const TypeSpec> m_parameters;
};

} // namespace tolva::win32
