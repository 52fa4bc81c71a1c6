#pragma once
#include "pages/property_page.h"
#include "platform/win32/gdi/gdi_object.h"
#include "platform/win32/windows_api.h"
#include <memory>
#include <vector>

namespace tolva::win32 {

// The page's check boxes and option buttons as the system's own BUTTON windows inside the page's
// window, in its Tahoma font. A click goes to the page's field model (the page window reflects
// the button's notification back to it); a value set by code is shown again.
class PageButtons {
public:
    PageButtons(PropertyPage& page, HWND pageWindow);
    ~PageButtons();
    PageButtons(const PageButtons&) = delete;
    PageButtons& operator=(const PageButtons&) = delete;

private:
    class Button;
    class CheckView;
    class OptionView;

    GdiObject<HFONT> m_font;
    std::vector<std::unique_ptr<CheckView>> m_checks;
    std::vector<std::unique_ptr<OptionView>> m_options;
};

} // namespace tolva::win32
