#include "host/win32/host_form.h"
#include "host/form/form_syntax_error.h"
#include "host/form/form_values.h"
#include "host/win32/event_text.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/ole_variant.h"
#include "platform/win32/gdi/gdi_object.h"
#include "platform/win32/window/window_class.h"
#include <algorithm>
#include <cmath>

namespace tolva::host {

namespace {

constexpr float TwipsPerPixel = 15;
constexpr UINT FirstMenuId = 100;

LONG ToPixels(double twips)
{
    return LONG(std::lround(twips / TwipsPerPixel));
}

COLORREF ToRgb(OleColor color)
{
    return IsSystemColor(color) ? GetSysColor(SystemColorIndex(color)) : COLORREF(color & 0xFFFFFF);
}

String NumberText(double value)
{
    VARIANT number;
    V_VT(&number) = VT_R8;
    V_R8(&number) = value;
    return ArgumentText(number);
}

bool SameObject(IUnknown* a, IUnknown* b)
{
    win32::ComPtr<IUnknown> first = win32::ComPtr<IUnknown>(a).As<IUnknown>(IID_IUnknown);
    win32::ComPtr<IUnknown> second = win32::ComPtr<IUnknown>(b).As<IUnknown>(IID_IUnknown);
    return first && first.Get() == second.Get();
}

void CollectMenus(MenuItem& menu, std::vector<IDispatch*>& objects)
{
    objects.push_back(&menu);
    for (const auto& item : menu.Items())
        CollectMenus(*item.Get(), objects);
}

} // namespace

HostForm::HostForm(const FormObject& definition, EventLog& log, bool userMode)
    : m_log(log)
    , m_userMode(userMode)
    , m_definition(definition.type, definition.name, definition.line)
    , m_name(definition.name)
    , m_caption(definition.name)
{
    m_definition.properties = definition.properties;
    ReadFormProperties(definition);
    CreateFormWindow(definition);
    m_frame = win32::ComPtr<InPlaceFrame>::Adopt(new InPlaceFrame(m_window));
    m_automation = win32::ComPtr<FormAutomation>::Adopt(new FormAutomation(*this));
    try {
        UINT nextMenuId = FirstMenuId;
        for (const FormObject& child : definition.children) {
            if (SameIdentifier(child.type, u"VB.Menu")) {
                m_menus.push_back(MenuItem::FromForm(child, nextMenuId));
                m_menus.back()->SetChangeHandler([this] { UpdateMenuBar(); });
                m_children.push_back({ true, m_menus.size() - 1 });
            } else if (child.type.rfind(u"VB.", 0) == 0) {
                throw FormSyntaxError(
                    child.line, ToUtf8(child.type) + " is not supported: the host holds ActiveX controls and menus");
            } else {
                m_controls.push_back(std::make_unique<FormControl>(*this, child));
                m_children.push_back({ false, m_controls.size() - 1 });
            }
        }
        UpdateMenuBar();
    } catch (...) {
        Close();
        throw;
    }
}

HostForm::~HostForm()
{
    Close();
}

void HostForm::ReadFormProperties(const FormObject& definition)
{
    const FormValues values = ReadFormValues(definition);
    m_caption = values.caption;
    m_clientWidth = values.clientWidth;
    m_clientHeight = values.clientHeight;
    m_font = values.font;
    m_backColor = values.backColor;
    m_foreColor = values.foreColor;
}

void HostForm::CreateFormWindow(const FormObject& definition)
{
    static const win32::WindowClass formClass(L"TolvaHostForm", &win32::OwnedWindowProcedure<HostForm>, 0);
    const bool hasMenuBar
        = std::any_of(definition.children.begin(), definition.children.end(), [](const FormObject& c) {
              const FormProperty* visible = c.Find(u"Visible");
              return SameIdentifier(c.type, u"VB.Menu") && (!visible || visible->value != Variant(false));
          });
    constexpr DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    RECT frame { 0, 0, ToPixels(m_clientWidth), ToPixels(m_clientHeight) };
    AdjustWindowRectEx(&frame, style, hasMenuBar, 0);
    m_window = CreateWindowExW(0, formClass.Name(), win32::WidePointer(m_caption), style, 60, 60,
        frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr, GetModuleHandleW(nullptr), this);
    if (!m_window)
        throw FormSyntaxError(definition.line, "the form window could not be created");
}

void HostForm::UpdateMenuBar()
{
    if (!m_window)
        return;
    win32::MenuHandle bar;
    for (const auto& menu : m_menus) {
        if (!menu->Visible())
            continue;
        if (!bar)
            bar.reset(CreateMenu());
        const UINT state = menu->Enabled() ? MF_ENABLED : MF_GRAYED;
        if (menu->Items().empty())
            AppendMenuW(bar.get(), MF_STRING | state, menu->Id(), win32::WidePointer(menu->Caption()));
        else
            win32::AppendSubmenu(bar.get(), state, menu->CreatePopup(), win32::WidePointer(menu->Caption()));
    }
    SetMenu(m_window, bar.get());
    m_menuBar = std::move(bar); // the previous bar goes now that the window no longer shows it
    DrawMenuBar(m_window);
}

void HostForm::Show()
{
    ShowWindow(m_window, SW_SHOW);
    UpdateWindow(m_window);
    SetForegroundWindow(m_window);
    for (auto& control : m_controls)
        control->Activate();
    const std::vector<FormControl*> order = TabOrder();
    if (!order.empty())
        order.front()->Focus();
}

void HostForm::Close()
{
    for (auto& control : m_controls)
        control->Close();
    for (auto& menu : m_menus)
        menu->SetChangeHandler(nullptr);
    m_uiActive = nullptr;
    if (m_automation)
        m_automation->Disconnect();
    if (m_frame)
        m_frame->Disconnect();
    if (m_window)
        DestroyWindow(m_window);
}

void HostForm::SetCaption(StringView caption)
{
    m_caption = caption;
    if (m_window)
        SetWindowTextW(m_window, win32::WidePointer(m_caption));
}

void HostForm::SetDefaultButton(FormControl* control)
{
    for (auto& each : m_controls)
        if (each.get() != control)
            each->SetDefault(false);
    if (control)
        control->SetDefault(true);
}

FormControl* HostForm::FindControl(StringView name) const
{
    for (const auto& control : m_controls)
        if (SameIdentifier(control->Name(), name))
            return control.get();
    return nullptr;
}

std::vector<FormControl*> HostForm::Controls() const
{
    std::vector<FormControl*> controls;
    for (const auto& control : m_controls)
        controls.push_back(control.get());
    return controls;
}

std::vector<MenuItem*> HostForm::MenuItems() const
{
    std::vector<IDispatch*> objects;
    for (const auto& menu : m_menus)
        CollectMenus(*menu.Get(), objects);
    std::vector<MenuItem*> items;
    for (IDispatch* object : objects)
        items.push_back(static_cast<MenuItem*>(object));
    return items;
}

MenuItem* HostForm::FindMenu(StringView name) const
{
    for (const auto& menu : m_menus)
        if (MenuItem* found = menu->FindByName(name))
            return found;
    return nullptr;
}

MenuItem* HostForm::FindMenuById(UINT id) const
{
    for (const auto& menu : m_menus)
        if (MenuItem* found = menu->FindById(id))
            return found;
    return nullptr;
}

MenuItem* HostForm::MenuOf(const VARIANT& value) const
{
    win32::OleVariant plain;
    if (FAILED(VariantCopyInd(plain.Put(), const_cast<VARIANT*>(&value))))
        return nullptr;
    const VARIANT& v = plain.Get();
    IUnknown* object = V_VT(&v) == VT_DISPATCH ? V_DISPATCH(&v) : V_VT(&v) == VT_UNKNOWN ? V_UNKNOWN(&v) : nullptr;
    if (!object)
        return nullptr;
    for (MenuItem* menu : MenuItems())
        if (SameObject(static_cast<IDispatch*>(menu), object))
            return menu;
    return nullptr;
}

IDispatch* HostForm::ControlObject(StringView name) const
{
    if (FormControl* control = FindControl(name))
        return control->Extender();
    return FindMenu(name);
}

std::vector<IDispatch*> HostForm::ControlObjects() const
{
    std::vector<IDispatch*> objects;
    for (const Child& child : m_children) {
        if (child.menu)
            CollectMenus(*m_menus[child.index].Get(), objects);
        else if (IDispatch* extender = m_controls[child.index]->Extender())
            objects.push_back(extender);
    }
    return objects;
}

FormObject HostForm::Save() const
{
    FormObject form = m_definition;
    if (m_caption != m_name || form.Find(u"Caption"))
        form.Set(u"Caption", m_caption);
    for (const Child& child : m_children)
        form.children.push_back(child.menu ? m_menus[child.index]->ToForm() : m_controls[child.index]->Save());
    return form;
}

void HostForm::LogEvent(StringView object, StringView event, std::span<VARIANT*> arguments)
{
    m_log.Write(EventLine(object, event, arguments));
}

void HostForm::ClickMenu(MenuItem& item)
{
    win32::ComPtr<IDispatch> keepAlive(&item);
    LogEvent(item.Name(), u"Click", {});
    if (m_handlers)
        m_handlers->Run(item.Name() + u"_Click", {});
}

void HostForm::PopupMenu(MenuItem& menu, int flags, std::optional<double> x, std::optional<double> y)
{
    if (!m_window)
        return;
    POINT at {};
    GetCursorPos(&at);
    if (x || y) {
        POINT origin { 0, 0 };
        ClientToScreen(m_window, &origin);
        if (x)
            at.x = origin.x + ToPixels(*x);
        if (y)
            at.y = origin.y + ToPixels(*y);
    }
    m_log.Write(m_name + u".PopupMenu " + menu.Name() + (x ? u", " + NumberText(*x) : u"")
        + (y ? u", " + NumberText(*y) : u""));
    UINT track = TPM_RETURNCMD | TPM_TOPALIGN;
    track |= (flags & 8) ? TPM_RIGHTALIGN : (flags & 4) ? TPM_CENTERALIGN : TPM_LEFTALIGN;
    track |= (flags & 2) ? TPM_RIGHTBUTTON : TPM_LEFTBUTTON;
    win32::ComPtr<IDispatch> keepMenu(&menu);
    const win32::MenuHandle popup = menu.CreatePopup();
    // A pop-up menu closes properly only when its owner is the foreground window.
    SetForegroundWindow(m_window);
    const UINT chosen = TrackPopupMenuEx(popup.get(), track, at.x, at.y, m_window, nullptr);
    if (MenuItem* item = chosen ? FindMenuById(chosen) : nullptr)
        ClickMenu(*item);
}

void HostForm::OnControlUIActivate(FormControl& control)
{
    if (m_uiActive && m_uiActive != &control)
        m_uiActive->UIDeactivate();
    m_uiActive = &control;
}

void HostForm::OnControlUIDeactivate(FormControl& control)
{
    if (m_uiActive == &control)
        m_uiActive = nullptr;
}

std::vector<FormControl*> HostForm::TabOrder() const
{
    std::vector<FormControl*> order;
    for (const auto& control : m_controls)
        if (control->TakesFocus())
            order.push_back(control.get());
    std::stable_sort(order.begin(), order.end(),
        [](const FormControl* a, const FormControl* b) { return a->TabIndex() < b->TabIndex(); });
    return order;
}

void HostForm::FocusNext(bool backwards)
{
    const std::vector<FormControl*> order = TabOrder();
    if (order.empty())
        return;
    HWND focus = GetFocus();
    auto current = std::find_if(order.begin(), order.end(), [focus](const FormControl* c) {
        HWND window = c->Window();
        return window && (window == focus || IsChild(window, focus));
    });
    size_t index = 0;
    if (current != order.end()) {
        const size_t at = size_t(current - order.begin());
        index = backwards ? (at + order.size() - 1) % order.size() : (at + 1) % order.size();
    }
    order[index]->Focus();
}

bool HostForm::PreTranslateMessage(MSG& message)
{
    if (!m_window || (message.hwnd != m_window && !IsChild(m_window, message.hwnd)))
        return false;
    if (message.message == WM_SYSKEYDOWN) {
        for (auto& control : m_controls)
            if (control->HandleMnemonic(message))
                return true;
    }
    if (message.message == WM_KEYDOWN && message.wParam == VK_TAB) {
        FocusNext(GetKeyState(VK_SHIFT) < 0);
        return true;
    }
    return false;
}

void HostForm::Attach(HWND window)
{
    m_window = window;
}

void HostForm::Detach()
{
    m_window = nullptr;
    m_menuBar.reset();
}

LRESULT HostForm::HandleMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_COMMAND:
        if (HIWORD(wParam) == 0 && lParam == 0)
            if (MenuItem* item = FindMenuById(LOWORD(wParam)))
                ClickMenu(*item);
        return 0;
    case WM_SETFOCUS: {
        // The form passes the focus on to the control that had it, or to the first one. A control
        // hidden or disabled since it had it is passed over: activating it would show it again.
        FormControl* target = m_uiActive && m_uiActive->TakesFocus() ? m_uiActive : nullptr;
        if (!target) {
            const std::vector<FormControl*> order = TabOrder();
            target = order.empty() ? nullptr : order.front();
        }
        if (target)
            target->Focus();
        return 0;
    }
    case WM_ERASEBKGND: {
        RECT client;
        GetClientRect(m_window, &client);
        win32::GdiObject<HBRUSH> brush(CreateSolidBrush(ToRgb(m_backColor)));
        FillRect(reinterpret_cast<HDC>(wParam), &client, brush.Get());
        if (m_backgroundPainter)
            m_backgroundPainter(reinterpret_cast<HDC>(wParam));
        return 1;
    }
    case WM_CLOSE:
        if (m_closing)
            m_closing();
        Close();
        return 0;
    case WM_DESTROY:
        if (m_quitOnClose)
            PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(m_window, message, wParam, lParam);
    }
}

} // namespace tolva::host
