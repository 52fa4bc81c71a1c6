#pragma once
#include "core/font.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/windows_api.h"
#include <functional>
#include <ocidl.h>
#include <olectl.h>

namespace tolva::win32 {

// The standard font object a control hands out as its Font property: one per control, and
// watched through IPropertyNotifySink, so that `ctl.Font.Bold = True` changes the control.
// The control's own Font value is what counts (it is saved and drawn); the object is a view of
// it. A change the client makes through the object is carried over attribute by attribute: the
// one the notification names is read from the object, the others stay as the control had them,
// so that what the object realised meanwhile (Wine's reports another face) never reaches the
// control.
class LiveFont {
public:
    // changed receives the control's font with the client's change applied; owner, the
    // control's COM object, is held while it runs.
    LiveFont(IUnknown& owner, std::function<void(const Font&)> changed);
    ~LiveFont();
    LiveFont(const LiveFont&) = delete;
    LiveFont& operator=(const LiveFont&) = delete;

    // The font object showing font: the current one when it shows it, else a new one that
    // replaces it (the control's font changed some other way, say by loading). What the object
    // shows is remembered as it was last given or carried over, never read back whole.
    ComPtr<IFontDisp> ObjectFor(const Font& font);

    // Makes the client's font object the control's (Set ctl.Font = f): later changes of it
    // reach the control. Returns the attributes it was given.
    Font Attach(IFont* font);

private:
    class Sink;

    void Watch(ComPtr<IFont> font);
    void Unwatch();
    void OnChanged(DISPID attribute);

    IUnknown& m_owner;
    std::function<void(const Font&)> m_changed;
    ComPtr<IFont> m_font;
    Font m_shown; // the attributes m_font shows
    ComPtr<Sink> m_sink;
    ComPtr<IConnectionPoint> m_point;
    DWORD m_cookie = 0;
};

} // namespace tolva::win32
