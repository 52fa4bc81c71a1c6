#include "host/win32/form_designer.h"
#include "host/win32/property_frame.h"
#include "platform/win32/com/com_object.h"
#include <algorithm>

namespace tolva::host {

namespace {

constexpr int FrameGap = 3; // pixels between a control and its selection frame

bool IsMouseMessage(UINT message)
{
    return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
}

bool IsKeyMessage(UINT message)
{
    return message == WM_KEYDOWN || message == WM_KEYUP || message == WM_CHAR;
}

} // namespace

// Hears the controls' IPropertyNotifySink::OnChanged: a property changed in the designer.
class FormDesigner::ChangeSink final : public win32::ComObject<IPropertyNotifySink> {
public:
    explicit ChangeSink(FormDesigner& designer)
        : m_designer(&designer)
    { }
    void Detach() { m_designer = nullptr; }

    HRESULT STDMETHODCALLTYPE OnChanged(DISPID) override
    {
        if (m_designer)
            m_designer->MarkDirty();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }

protected:
    void* Find(REFIID iid) override
    {
        return iid == IID_IPropertyNotifySink ? static_cast<IPropertyNotifySink*>(this) : nullptr;
    }

private:
    FormDesigner* m_designer;
};

FormDesigner::FormDesigner(HostForm& form, std::function<bool()> save)
    : m_form(form)
    , m_save(std::move(save))
    , m_sink(win32::ComPtr<ChangeSink>::Adopt(new ChangeSink(*this)))
{
    for (FormControl* control : m_form.Controls()) {
        auto container = win32::ComPtr<IUnknown>(control->Object()).As<IConnectionPointContainer>(IID_IConnectionPointContainer);
        Connection connection;
        if (container && SUCCEEDED(container->FindConnectionPoint(IID_IPropertyNotifySink, connection.point.Put()))
            && SUCCEEDED(connection.point->Advise(static_cast<IPropertyNotifySink*>(m_sink.Get()), &connection.cookie)))
            m_connections.push_back(std::move(connection));
    }
    m_form.SetBackgroundPainter([this](HDC dc) { PaintSelection(dc); });
    UpdateTitle();
}

FormDesigner::~FormDesigner()
{
    m_form.SetBackgroundPainter(nullptr);
    for (Connection& connection : m_connections)
        connection.point->Unadvise(connection.cookie);
    m_sink->Detach();
}

FormControl* FormDesigner::ControlOf(HWND window) const
{
    for (FormControl* control : m_form.Controls()) {
        HWND own = control->Window();
        if (own && (own == window || IsChild(own, window)))
            return control;
    }
    return nullptr;
}

bool FormDesigner::PreTranslateMessage(const MSG& message)
{
    HWND form = m_form.Window();
    if (!form || (message.hwnd != form && !IsChild(form, message.hwnd)))
        return false;
    const bool onControl = message.hwnd != form;
    if (message.message == WM_LBUTTONDOWN || message.message == WM_LBUTTONDBLCLK)
        return Click(message);
    if (IsMouseMessage(message.message))
        return onControl; // the controls are being designed, not used
    if (message.message == WM_KEYDOWN && message.wParam == VK_F4) {
        OpenProperties();
        return true;
    }
    if (message.message == WM_KEYDOWN && message.wParam == 'S' && GetKeyState(VK_CONTROL) < 0) {
        Save();
        return true;
    }
    return IsKeyMessage(message.message);
}

// A press on a control selects it, a second one on the same control in the double-click time
// opens its properties; a press on the form clears the selection.
bool FormDesigner::Click(const MSG& message)
{
    FormControl* control = ControlOf(message.hwnd);
    const bool add = GetKeyState(VK_CONTROL) < 0;
    const bool doubleClick = message.message == WM_LBUTTONDBLCLK
        || (control && control == m_lastClicked && message.time - m_lastClickTime <= GetDoubleClickTime());
    m_lastClicked = doubleClick ? nullptr : control;
    m_lastClickTime = message.time;
    if (doubleClick && !add) {
        if (std::find(m_selection.begin(), m_selection.end(), control) == m_selection.end())
            Select(control, false);
        OpenProperties();
        return true;
    }
    Select(control, add);
    return true;
}

void FormDesigner::Select(FormControl* control, bool add)
{
    if (!add)
        m_selection.clear();
    if (control && std::find(m_selection.begin(), m_selection.end(), control) == m_selection.end())
        m_selection.push_back(control);
    InvalidateRect(m_form.Window(), nullptr, TRUE);
}

void FormDesigner::OpenProperties()
{
    if (m_selection.empty())
        return;
    std::vector<win32::ComPtr<IUnknown>> objects;
    for (FormControl* control : m_selection)
        objects.emplace_back(control->Object());
    const String& first = m_selection.front()->Name();
    PropertyFrame frame(m_form.Window(), std::wstring(first.begin(), first.end()) + L" Properties", std::move(objects));
    frame.Run();
    InvalidateRect(m_form.Window(), nullptr, TRUE);
}

bool FormDesigner::Save()
{
    if (!m_save())
        return false;
    m_dirty = false;
    UpdateTitle();
    return true;
}

void FormDesigner::MarkDirty()
{
    if (m_dirty)
        return;
    m_dirty = true;
    UpdateTitle();
}

void FormDesigner::UpdateTitle()
{
    const String& caption = m_form.Caption();
    std::wstring title(caption.begin(), caption.end());
    title += L" [design]";
    if (m_dirty)
        title += L" *";
    SetWindowTextW(m_form.Window(), title.c_str());
}

void FormDesigner::PaintSelection(HDC dc) const
{
    HBRUSH highlight = GetSysColorBrush(COLOR_HIGHLIGHT);
    for (const FormControl* control : m_selection) {
        RECT frame = control->Rect();
        InflateRect(&frame, FrameGap, FrameGap);
        FrameRect(dc, &frame, highlight);
        InflateRect(&frame, -1, -1);
        FrameRect(dc, &frame, highlight);
    }
}

} // namespace tolva::host
