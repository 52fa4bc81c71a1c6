#include "host/win32/property_frame.h"
#include "platform/win32/com/com_object.h"
#include "platform/win32/window/window_class.h"
#include <algorithm>

namespace tolva::host {

namespace {

constexpr int Margin = 8;
constexpr int ButtonWidth = 80;
constexpr int ButtonHeight = 24;

HWND CreateButton(HWND parent, const std::wstring& text, int id, int x, int y, HFONT font)
{
    HWND button = CreateWindowExW(0, L"BUTTON", text.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, x, y,
                                  ButtonWidth, ButtonHeight, parent, HMENU(INT_PTR(id)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(button, WM_SETFONT, WPARAM(font), FALSE);
    return button;
}

} // namespace

// The site every page of the frame reports to.
class PropertyFrame::Site final : public win32::ComObject<IPropertyPageSite> {
public:
    explicit Site(PropertyFrame& frame)
        : m_frame(&frame)
    { }
    void Detach() { m_frame = nullptr; }

    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override
    {
        if (m_frame && (flags & PROPPAGESTATUS_DIRTY))
            m_frame->OnStatusChange();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) override
    {
        if (!locale)
            return E_POINTER;
        *locale = GetUserDefaultLCID();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** container) override
    {
        if (container)
            *container = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }

protected:
    void* Find(REFIID iid) override
    {
        return iid == IID_IPropertyPageSite ? static_cast<IPropertyPageSite*>(this) : nullptr;
    }

private:
    PropertyFrame* m_frame;
};

PropertyFrame::PropertyFrame(HWND owner, std::wstring caption, std::vector<win32::ComPtr<IUnknown>> objects)
    : m_owner(owner)
    , m_caption(std::move(caption))
    , m_objects(std::move(objects))
    , m_site(win32::ComPtr<Site>::Adopt(new Site(*this)))
{ }

PropertyFrame::~PropertyFrame()
{
    for (Page& page : m_pages) {
        page.page->Deactivate();
        page.page->SetObjects(0, nullptr);
        page.page->SetPageSite(nullptr);
    }
    m_site->Detach();
    if (m_window)
        DestroyWindow(m_window);
}

void PropertyFrame::LoadPages()
{
    if (m_objects.empty())
        return;
    auto specify = m_objects.front().As<ISpecifyPropertyPages>(IID_ISpecifyPropertyPages);
    CAUUID ids {};
    if (!specify || FAILED(specify->GetPages(&ids)))
        return;
    std::vector<IUnknown*> objects;
    for (const auto& object : m_objects)
        objects.push_back(object.Get());
    for (ULONG i = 0; i < ids.cElems; ++i) {
        Page entry;
        if (FAILED(CoCreateInstance(ids.pElems[i], nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage, entry.page.PutVoid())))
            continue;
        PROPPAGEINFO info {};
        info.cb = sizeof info;
        if (FAILED(entry.page->SetPageSite(m_site.Get())) || FAILED(entry.page->SetObjects(ULONG(objects.size()), objects.data()))
            || FAILED(entry.page->GetPageInfo(&info)))
            continue;
        entry.title = info.pszTitle ? info.pszTitle : L"";
        entry.size = info.size;
        CoTaskMemFree(info.pszTitle);
        CoTaskMemFree(info.pszDocString);
        CoTaskMemFree(info.pszHelpFile);
        m_pages.push_back(std::move(entry));
    }
    CoTaskMemFree(ids.pElems);
}

void PropertyFrame::CreateFrameWindow()
{
    static const win32::WindowClass frameClass(WindowClass, &win32::OwnedWindowProcedure<PropertyFrame>, 0);
    SIZE area {};
    for (const Page& page : m_pages) {
        area.cx = std::max(area.cx, page.size.cx);
        area.cy = std::max(area.cy, page.size.cy);
    }
    area.cx = std::max<LONG>(area.cx, 3 * (ButtonWidth + Margin));
    const int top = Margin + ButtonHeight + Margin;
    m_pageArea = { Margin, top, Margin + area.cx, top + area.cy };
    RECT outer { 0, 0, m_pageArea.right + Margin, m_pageArea.bottom + Margin + ButtonHeight + Margin };
    const DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    AdjustWindowRectEx(&outer, style, FALSE, WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT);
    RECT owner {};
    GetWindowRect(m_owner, &owner);
    CreateWindowExW(WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT, frameClass.Name(), m_caption.c_str(), style,
                    owner.left + 40, owner.top + 40, outer.right - outer.left, outer.bottom - outer.top, m_owner, nullptr,
                    GetModuleHandleW(nullptr), this);
    m_font = HFONT(GetStockObject(DEFAULT_GUI_FONT));
    for (size_t i = 0; i < m_pages.size(); ++i)
        CreateButton(m_window, m_pages[i].title, FirstPageButton + int(i), Margin + int(i) * (ButtonWidth + 4), Margin, m_font);
    const int bottom = m_pageArea.bottom + Margin;
    const int right = m_pageArea.right;
    CreateButton(m_window, L"OK", OkButton, right - 3 * ButtonWidth - 2 * Margin, bottom, m_font);
    CreateButton(m_window, L"Cancel", CancelButton, right - 2 * ButtonWidth - Margin, bottom, m_font);
    m_apply = CreateButton(m_window, L"&Apply", ApplyButton, right - ButtonWidth, bottom, m_font);
    EnableWindow(m_apply, FALSE);
    for (Page& page : m_pages) {
        RECT rect { m_pageArea.left, m_pageArea.top, m_pageArea.left + page.size.cx, m_pageArea.top + page.size.cy };
        page.page->Activate(m_window, &rect, TRUE);
        page.page->Show(SW_HIDE);
    }
}

bool PropertyFrame::Run()
{
    LoadPages();
    if (m_pages.empty())
        return false;
    CreateFrameWindow();
    ShowPage(0);
    EnableWindow(m_owner, FALSE);
    ShowWindow(m_window, SW_SHOW);
    MSG message;
    while (!m_closed && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (m_pages[m_current].page->TranslateAccelerator(&message) == S_OK)
            continue;
        if (IsDialogMessageW(m_window, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    EnableWindow(m_owner, TRUE);
    SetActiveWindow(m_owner);
    for (Page& page : m_pages)
        page.page->Show(SW_HIDE);
    ShowWindow(m_window, SW_HIDE);
    return true;
}

void PropertyFrame::ShowPage(size_t index)
{
    m_pages[m_current].page->Show(SW_HIDE);
    m_current = index;
    m_pages[m_current].page->Show(SW_SHOW);
}

// Applies the dirty pages; false when one of them refused (its error has been shown).
bool PropertyFrame::ApplyAll()
{
    for (Page& page : m_pages) {
        if (page.page->IsPageDirty() != S_OK)
            continue;
        if (FAILED(page.page->Apply())) {
            win32::ComPtr<IErrorInfo> error;
            GetErrorInfo(0, error.Put());
            BSTR description = nullptr;
            if (error)
                error->GetDescription(&description);
            MessageBoxW(m_window, description ? description : L"The page could not be applied.", m_caption.c_str(),
                        MB_OK | MB_ICONEXCLAMATION);
            SysFreeString(description);
            return false;
        }
    }
    EnableWindow(m_apply, FALSE);
    return true;
}

void PropertyFrame::OnStatusChange()
{
    if (m_apply)
        EnableWindow(m_apply, TRUE);
}

LRESULT PropertyFrame::HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_COMMAND: {
        const int id = LOWORD(wParam);
        if (id == OkButton) {
            if (ApplyAll())
                m_closed = true;
        } else if (id == CancelButton) {
            m_closed = true;
        } else if (id == ApplyButton) {
            ApplyAll();
        } else if (id >= FirstPageButton && id < FirstPageButton + int(m_pages.size())) {
            ShowPage(size_t(id - FirstPageButton));
        }
        return 0;
    }
    case WM_CLOSE:
        m_closed = true;
        return 0;
    case WM_ERASEBKGND: {
        RECT client;
        GetClientRect(window, &client);
        FillRect(HDC(wParam), &client, GetSysColorBrush(COLOR_BTNFACE));
        return 1;
    }
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

} // namespace tolva::host
