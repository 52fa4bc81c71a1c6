#pragma once
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/windows_api.h"
#include <functional>
#include <oaidl.h>
#include <string>
#include <vector>

namespace tolva::bench {

// A control of the registered library in Wine's ATL container (the AtlAxWin window class), in a
// child window of parent, as a form shows it.
class AtlControl {
public:
    AtlControl(HWND parent, const wchar_t* progId, const RECT& place);
    ~AtlControl();
    AtlControl(const AtlControl&) = delete;
    AtlControl& operator=(const AtlControl&) = delete;

    HWND Window() const { return m_window; } // the control's own, inside the container
    IDispatch* Dispatch() const { return m_dispatch.Get(); }
    void Put(const wchar_t* property, VARIANT value);
    void Call(const wchar_t* method, VARIANT argument);

private:
    HWND m_container = nullptr;
    HWND m_window = nullptr;
    win32::ComPtr<IDispatch> m_dispatch;
};

// One public control as the hover benchmark shows it: set up by pose, with the pointer moving
// over the window that pointerWindow picks (the control's own unless it consists of parts).
struct HoverCase {
    std::wstring name;
    const wchar_t* progId;
    std::function<void(AtlControl&)> pose;
    std::function<HWND(const AtlControl&)> pointerWindow;
};

// Every public control, each in the look that costs most to paint. A new control adds its line.
std::vector<HoverCase> HoverCases();

VARIANT Text(const wchar_t* text); // the caller owns the string

} // namespace tolva::bench
