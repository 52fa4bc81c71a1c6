#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// A window class of this module, registered on first use and unregistered when the module
// unloads, so that a later load at another address registers its own window procedure again.
class WindowClass {
public:
    WindowClass(const wchar_t* name, WNDPROC procedure, UINT style);
    ~WindowClass();
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;

    const wchar_t* Name() const { return m_name; }

private:
    const wchar_t* m_name;
    ATOM m_atom;
};

} // namespace tolva::win32
