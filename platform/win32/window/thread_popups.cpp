#include "platform/win32/window/thread_popups.h"
#include "controls/input/popups/popup_forms.h"
#include "core/popup_window_factory.h"
#include "platform/win32/com/module.h"
#include "platform/win32/com/ole_formatter.h"
#include "platform/win32/window/window_surface.h"

namespace tolva::win32 {

namespace {

// The container of the pop-up forms and of the controls on them: the system's formatting in the
// user's locale, the default font, run mode, and no form or designer above them.
class PopupFormSite final : public ControlSite {
public:
    explicit PopupFormSite(InputPopups& popups)
        : m_popups(popups)
    { }

    void PropertyChanged(StringView) override { }
    Font AmbientFont() override { return Font(); }
    bool UserMode() override { return true; }
    bool DisplayAsDefault() override { return false; }
    String ExtenderName() override { return {}; }
    float ExtenderWidth() override { return 0; }
    float ExtenderHeight() override { return 0; }
    ParentForm* Parent() override { return nullptr; }
    int MessageBox(StringView, int) override { return 0; }
    void Beep() override { MessageBeep(MB_OK); }
    void ShowAboutBox() override { }
    Formatter& Formatting() override { return m_formatter; }
    InputPopups& Popups() override { return m_popups; }

private:
    InputPopups& m_popups;
    OleFormatter m_formatter;
};

class PopupWindows final : public PopupWindowFactory {
public:
    explicit PopupWindows(IUnknown* keepAlive)
        : m_keepAlive(keepAlive)
    { }
    std::unique_ptr<Surface> CreatePopupWindow() override { return WindowSurface::CreatePopupWindow(m_keepAlive); }

private:
    IUnknown* m_keepAlive;
};

// The thread's set, counted like a COM object by the holds and by its own windows' messages.
class PopupThread final : public IUnknown {
public:
    static PopupThread*& Current()
    {
        thread_local PopupThread* current = nullptr;
        return current;
    }

    InputPopups& Popups() { return m_popups; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override
    {
        if (!object)
            return E_POINTER;
        *object = iid == IID_IUnknown ? static_cast<IUnknown*>(this) : nullptr;
        if (!*object)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ULONG(++m_references); }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const long left = --m_references;
        if (left == 0) {
            if (Current() == this)
                Current() = nullptr;
            // Destroying the windows sends them messages, which hold the set in turn: the count
            // must not reach 0 again meanwhile.
            m_references = Dying;
            delete this;
        }
        return ULONG(left);
    }

private:
    ~PopupThread() = default;

    static constexpr long Dying = 1L << 30;

    ModuleReference m_module;
    long m_references = 0;
    PopupFormSite m_site { m_popups };
    PopupWindows m_windows { this };
    PopupForms m_forms { m_windows, m_site };
    InputPopups m_popups { m_forms };
};

} // namespace

InputPopups& ThreadPopups::Get()
{
    if (!m_popups) {
        PopupThread*& current = PopupThread::Current();
        if (!current)
            current = new PopupThread;
        m_hold = ComPtr<IUnknown>(current);
        m_popups = &current->Popups();
    }
    return *m_popups;
}

} // namespace tolva::win32
