#pragma once
#include "core/control_site.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/ole_formatter.h"
#include "platform/win32/window/thread_popups.h"
#include "platform/win32/windows_api.h"
#include <functional>
#include <memory>
#include <ocidl.h>

namespace tolva::win32 {

class DispatchParentForm;

// The core's view of the container: ambients through the client site's IDispatch, the
// extender through IOleControlSite, the parent form through the extender's Parent. Without a
// client site (a script's CreateObject) it answers with defaults: user mode, MS Sans Serif
// 8.25, not the default button, the class's first instance name and the surface's size; message
// and about boxes are then refused silently, since no window could own them and nothing modal
// may block a script. Formatting is the system's, in the user's locale.
class OleControlSite final : public ControlSite {
public:
    // changed is called for PropertyChanged(key); object is the control's COM object, which Hold
    // keeps (nullptr for a site without one).
    OleControlSite(String defaultName, const Surface& surface, IUnknown* object,
        std::function<void(StringView key)> changed);
    ~OleControlSite() override;

    void SetClientSite(IOleClientSite* site);
    IOleClientSite* ClientSite() const { return m_clientSite.Get(); }

    void PropertyChanged(StringView key) override;

    Font AmbientFont() override;
    bool UserMode() override;
    bool DisplayAsDefault() override;

    String ExtenderName() override;
    float ExtenderWidth() override;
    float ExtenderHeight() override;
    ParentForm* Parent() override;

    int MessageBox(StringView prompt, int style) override;
    void Beep() override;
    void ShowAboutBox() override;
    Formatter& Formatting() override { return m_formatter; }
    InputPopups& Popups() override;
    std::shared_ptr<void> Hold() override;

private:
    // An ambient property or extender property, or nothing when the container lacks it.
    bool Ambient(DISPID id, VARIANT& value) const;
    bool ExtenderProperty(const wchar_t* name, VARIANT& value) const;
    HWND OwnerWindow() const;

    String m_defaultName;
    const Surface& m_surface;
    IUnknown* m_object;
    std::function<void(StringView)> m_changed;
    ComPtr<IOleClientSite> m_clientSite;
    std::unique_ptr<DispatchParentForm> m_parent;
    OleFormatter m_formatter;
    ThreadPopups m_popups;
};

} // namespace tolva::win32
