#pragma once
#include "platform/win32/com/com_error.h"
#include "platform/win32/windows_api.h"
#include <cstddef>
#include <oaidl.h>

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
// property assignment the assigned value is apart from the positional (index) arguments.
class DispatchArguments {
public:
    DispatchArguments(const DISPPARAMS& params, bool assignment);

    size_t Count() const { return m_count; }
    // Whether argument index was given (optional ones may be left out or passed as missing).
    bool Has(size_t index) const;
    const VARIANT& At(size_t index) const { return m_params.rgvarg[DispatchIndex(index)]; }
    const VARIANT& Value() const { return m_params.rgvarg[0]; } // assignments only

    UINT DispatchIndex(size_t index) const { return UINT(m_params.cArgs - 1 - index); }

    // Converts argument index (or the assigned value) with convert; a refusal becomes an
    // ArgumentError naming that argument.
    template <class F> auto Convert(size_t index, F&& convert) const
    {
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
};

} // namespace tolva::win32
