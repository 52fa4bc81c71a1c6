#pragma once
#include "platform/win32/windows_api.h"
#include <memory>
#include <type_traits>

namespace tolva::win32 {

struct MenuDestroyer {
    void operator()(HMENU menu) const { DestroyMenu(menu); }
};

// A menu destroyed with this object, its submenus with it. A submenu appended to another menu
// belongs to that menu from then on: release it once AppendSubmenu succeeded.
using MenuHandle = std::unique_ptr<std::remove_pointer_t<HMENU>, MenuDestroyer>;

// Appends submenu under caption; the menu owns it from then on.
inline void AppendSubmenu(HMENU menu, UINT flags, MenuHandle submenu, const wchar_t* caption)
{
    if (AppendMenuW(menu, flags | MF_POPUP, reinterpret_cast<UINT_PTR>(submenu.get()), caption))
        submenu.release();
}

} // namespace tolva::win32
