#include "platform/win32/window/window_class.h"
#include "platform/win32/com/module.h"

namespace tolva::win32 {

WindowClass::WindowClass(const wchar_t* name, WNDPROC procedure, UINT style)
    : m_name(name)
{
    WNDCLASSEXW wc {};
    wc.cbSize = sizeof wc;
    wc.style = style;
    wc.lpfnWndProc = procedure;
    wc.hInstance = Module::Handle();
    wc.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    wc.lpszClassName = name;
    m_atom = RegisterClassExW(&wc);
}

WindowClass::~WindowClass()
{
    if (m_atom)
        UnregisterClassW(m_name, Module::Handle());
}

} // namespace tolva::win32
