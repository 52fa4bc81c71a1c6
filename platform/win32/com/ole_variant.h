#pragma once
#include "platform/win32/windows_api.h"
#include <oleauto.h>

namespace tolva::win32 {

// An owned VARIANT, cleared on destruction.
class OleVariant {
public:
    OleVariant() { VariantInit(&m_value); }
    OleVariant(const OleVariant&) = delete;
    OleVariant& operator=(const OleVariant&) = delete;
    ~OleVariant() { VariantClear(&m_value); }

    VARIANT& Get() { return m_value; }
    const VARIANT& Get() const { return m_value; }
    VARTYPE Type() const { return V_VT(&m_value); }

    // Clears the value and returns the slot for an out-parameter.
    VARIANT* Put()
    {
        VariantClear(&m_value);
        return &m_value;
    }

    // Moves the value to the caller's VARIANT (which must not hold anything to free).
    void MoveTo(VARIANT& target)
    {
        target = m_value;
        VariantInit(&m_value);
    }

private:
    VARIANT m_value;
};

} // namespace tolva::win32
