#pragma once
#include "platform/win32/windows_api.h"
#include <array>
#include <cstdint>
#include <oaidl.h>
#include <span>

namespace tolva::win32 {

// Where a control's event forwarder sends its events: the sinks connected to the control's
// event interface.
class EventRaiser {
public:
    // Raises event id with its arguments in declared order. Never throws.
    virtual void Raise(DISPID id, std::span<VARIANT> arguments) = 0;

    // Raises an event whose arguments are all by reference, as the type library declares them:
    // the sinks write straight into the core's variables.
    template <class... Arguments> void RaiseByReference(DISPID id, Arguments&... arguments)
    {
        std::array<VARIANT, sizeof...(Arguments)> values { ByReference(arguments)... };
        Raise(id, values);
    }

    // Raises an event whose one argument is a Boolean by reference (VT_BYREF | VT_BOOL), and
    // carries back what the sinks left in it: anything but 0 is true, as the languages test it.
    void RaiseBooleanByReference(DISPID id, bool& value)
    {
        VARIANT_BOOL flag = value ? VARIANT_TRUE : VARIANT_FALSE;
        VARIANT argument;
        V_VT(&argument) = VT_BYREF | VT_BOOL;
        V_BOOLREF(&argument) = &flag;
        Raise(id, std::span<VARIANT>(&argument, 1));
        value = flag != VARIANT_FALSE;
    }

protected:
    ~EventRaiser() = default;

private:
    static VARIANT ByReference(int16_t& value)
    {
        VARIANT v;
        V_VT(&v) = VT_BYREF | VT_I2;
        V_I2REF(&v) = &value;
        return v;
    }
    static VARIANT ByReference(int32_t& value)
    {
        VARIANT v;
        V_VT(&v) = VT_BYREF | VT_I4;
        V_I4REF(&v) = reinterpret_cast<LONG*>(&value);
        return v;
    }
    static VARIANT ByReference(float& value)
    {
        VARIANT v;
        V_VT(&v) = VT_BYREF | VT_R4;
        V_R4REF(&v) = &value;
        return v;
    }
};

} // namespace tolva::win32
