#pragma once
#include "host/win32/host_form.h"
#include "platform/win32/com/com_ptr.h"
#include <functional>
#include <ocidl.h>
#include <vector>

namespace tolva::host {

// The host as a small form designer, over a form whose controls run with the ambient UserMode
// False: a click on a control selects it (Ctrl+click adds it to the selection, a click on the form
// clears it) and the selection is framed on the form; F4 or a double click opens the property
// frame for the selection; Ctrl+S saves. A property change reported by a control marks the form
// dirty, which the title shows with a trailing "*" until it is saved.
class FormDesigner {
public:
    // save writes the form file and says whether it did.
    FormDesigner(HostForm& form, std::function<bool()> save);
    ~FormDesigner();
    FormDesigner(const FormDesigner&) = delete;
    FormDesigner& operator=(const FormDesigner&) = delete;

    // Takes the mouse and key input meant for the form and its controls; true when used up.
    bool PreTranslateMessage(const MSG& message);

    const std::vector<FormControl*>& Selection() const { return m_selection; }
    void Select(FormControl* control, bool add); // null clears the selection
    void OpenProperties();
    bool Save();
    bool Dirty() const { return m_dirty; }

private:
    class ChangeSink;
    struct Connection {
        win32::ComPtr<IConnectionPoint> point;
        DWORD cookie = 0;
    };

    FormControl* ControlOf(HWND window) const;
    bool Click(const MSG& message);
    void MarkDirty();
    void UpdateTitle();
    void PaintSelection(HDC dc) const;

    HostForm& m_form;
    std::function<bool()> m_save;
    std::vector<FormControl*> m_selection;
    bool m_dirty = false;
    win32::ComPtr<ChangeSink> m_sink;
    std::vector<Connection> m_connections;
    FormControl* m_lastClicked = nullptr;
    DWORD m_lastClickTime = 0;
};

} // namespace tolva::host
