#include "platform/win32/pages/page_buttons.h"
#include "core/twips_canvas.h"
#include "platform/win32/gdi/drawing_objects.h"
#include <olectl.h>

namespace tolva::win32 {

namespace {

constexpr int TwipsPerPixel = 15;

// A BUTTON window subclassed to hear its own reflected notifications.
HWND CreateButton(HWND parent, const FieldPlace& place, StringView caption, DWORD style, HFONT font)
{
    const std::wstring text(caption.begin(), caption.end());
    HWND button = CreateWindowExW(0, L"BUTTON", text.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP | style,
                                  int(place.left) / TwipsPerPixel, int(place.top) / TwipsPerPixel,
                                  int(place.width) / TwipsPerPixel, int(place.height) / TwipsPerPixel, parent,
                                  nullptr, nullptr, nullptr);
    if (button)
        SendMessageW(button, WM_SETFONT, WPARAM(font), FALSE);
    return button;
}

} // namespace

// One BUTTON window: its clicks call onClick, its background is the page's.
class PageButtons::Button {
public:
    Button(HWND parent, const FieldPlace& place, StringView caption, DWORD style, HFONT font, std::function<void()> onClick)
        : m_window(CreateButton(parent, place, caption, style, font))
        , m_onClick(std::move(onClick))
    {
        if (!m_window)
            return;
        SetWindowLongPtrW(m_window, GWLP_USERDATA, LONG_PTR(this));
        m_buttonProc = WNDPROC(SetWindowLongPtrW(m_window, GWLP_WNDPROC, LONG_PTR(&Button::Procedure)));
    }
    ~Button()
    {
        if (m_window)
            DestroyWindow(m_window);
    }
    Button(const Button&) = delete;
    Button& operator=(const Button&) = delete;

    void SetCheck(int state) const
    {
        if (m_window)
            SendMessageW(m_window, BM_SETCHECK, WPARAM(state), 0);
    }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* self = reinterpret_cast<Button*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        switch (message) {
        case OCM_COMMAND:
            if (HIWORD(wParam) == BN_CLICKED)
                self->m_onClick();
            return 0;
        case OCM_CTLCOLORSTATIC:
        case OCM_CTLCOLORBTN:
            SetBkColor(HDC(wParam), GetSysColor(COLOR_BTNFACE));
            SetTextColor(HDC(wParam), GetSysColor(COLOR_BTNTEXT));
            return LRESULT(GetSysColorBrush(COLOR_BTNFACE));
        case WM_NCDESTROY: {
            WNDPROC original = self->m_buttonProc;
            SetWindowLongPtrW(window, GWLP_WNDPROC, LONG_PTR(original));
            self->m_window = nullptr;
            return CallWindowProcW(original, window, message, wParam, lParam);
        }
        default:
            return CallWindowProcW(self->m_buttonProc, window, message, wParam, lParam);
        }
    }

    HWND m_window;
    std::function<void()> m_onClick;
    WNDPROC m_buttonProc = nullptr;
};

// A check box: three states, shown as the model's value.
class PageButtons::CheckView final : public FieldView {
public:
    CheckView(HWND parent, CheckBox& box, HFONT font)
        : m_box(box)
        , m_button(parent, box.Place(), box.Caption(), BS_3STATE, font, [&box] { box.Click(); })
    {
        m_box.SetView(this);
        ValueChanged();
    }
    ~CheckView() { m_box.SetView(nullptr); }
    void ValueChanged() override { m_button.SetCheck(m_box.Value()); }

private:
    CheckBox& m_box;
    Button m_button;
};

// An option group: one radio button per index, the first opening the group.
class PageButtons::OptionView final : public FieldView {
public:
    OptionView(HWND parent, OptionGroup& group, HFONT font)
        : m_group(group)
    {
        const auto& buttons = group.Buttons();
        for (size_t i = 0; i < buttons.size(); ++i)
            m_buttons.push_back(std::make_unique<Button>(parent, buttons[i].place, buttons[i].caption,
                                                         BS_RADIOBUTTON | (i == 0 ? WS_GROUP : 0), font,
                                                         [&group, i] { group.Click(i); }));
        m_group.SetView(this);
        ValueChanged();
    }
    ~OptionView() { m_group.SetView(nullptr); }
    void ValueChanged() override
    {
        for (size_t i = 0; i < m_buttons.size(); ++i)
            m_buttons[i]->SetCheck(m_group.Value(i) ? BST_CHECKED : BST_UNCHECKED);
    }

private:
    OptionGroup& m_group;
    std::vector<std::unique_ptr<Button>> m_buttons;
};

PageButtons::PageButtons(PropertyPage& page, HWND pageWindow)
    : m_font(CreateCanvasFont(ToCanvasFont(PropertyPage::PageFont())))
{
    for (const auto& box : page.CheckBoxes())
        m_checks.push_back(std::make_unique<CheckView>(pageWindow, *box, m_font.Get()));
    for (const auto& group : page.OptionGroups())
        m_options.push_back(std::make_unique<OptionView>(pageWindow, *group, m_font.Get()));
}

PageButtons::~PageButtons() = default;

} // namespace tolva::win32
