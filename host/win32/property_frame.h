#pragma once
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/window/window_procedure.h"
#include "platform/win32/windows_api.h"
#include <ocidl.h>
#include <string>
#include <vector>

namespace tolva::host {

// The host's own property frame, as a form designer shows one: the pages the first selected
// object lists (ISpecifyPropertyPages), one button per page above them, and OK, Cancel and Apply
// below. Apply is enabled while a page reports a change to its site, and applies every page that
// says it is dirty; OK applies and closes. Modal to the owner; returns when it is closed.
//
// The system's frame is not used because some systems' frames never call a page's Apply.
class PropertyFrame {
public:
    PropertyFrame(HWND owner, std::wstring caption, std::vector<win32::ComPtr<IUnknown>> objects);
    ~PropertyFrame();
    PropertyFrame(const PropertyFrame&) = delete;
    PropertyFrame& operator=(const PropertyFrame&) = delete;

    // Runs the frame until it closes. Returns false when the objects list no pages.
    bool Run();

    // The control ids of the frame's buttons; page i's button is FirstPageButton + i.
    static constexpr int OkButton = IDOK;
    static constexpr int CancelButton = IDCANCEL;
    static constexpr int ApplyButton = 0x3021;
    static constexpr int FirstPageButton = 0x3100;
    static constexpr const wchar_t* WindowClass = L"TolvaHostPropertyFrame";

private:
    class Site;
    struct Page {
        win32::ComPtr<IPropertyPage> page;
        std::wstring title;
        SIZE size {};
    };

    // The window's life, through OwnedWindowProcedure.
    template <class Owner> friend LRESULT CALLBACK win32::OwnedWindowProcedure(HWND, UINT, WPARAM, LPARAM);
    void Attach(HWND window) { m_window = window; }
    void Detach() { m_window = nullptr; }
    LRESULT HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void LoadPages();
    void CreateFrameWindow();
    void ShowPage(size_t index);
    bool ApplyAll();
    void OnStatusChange();

    HWND m_owner;
    std::wstring m_caption;
    std::vector<win32::ComPtr<IUnknown>> m_objects;
    std::vector<Page> m_pages;
    win32::ComPtr<Site> m_site;
    HWND m_window = nullptr;
    HWND m_apply = nullptr;
    HFONT m_font = nullptr; // the system's stock font
    size_t m_current = 0;
    RECT m_pageArea {};
    bool m_closed = false;
};

} // namespace tolva::host
