#pragma once
#include "core/control_site.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/windows_api.h"
#include <oaidl.h>

namespace tolva::win32 {

// An object of the host handed back to it later (the menu control a form pops up).
class DispatchHostObject final : public HostObject {
public:
    explicit DispatchHostObject(ComPtr<IDispatch> object)
        : m_object(std::move(object))
    { }
    IDispatch* Object() const { return m_object.Get(); }

private:
    ComPtr<IDispatch> m_object;
};

// The form a control sits on, reached late-bound through the extender's Parent: its Controls
// collection, its window handle "hwnd" and its PopupMenu method, as a VB form has them.
class DispatchParentForm final : public ParentForm {
public:
    explicit DispatchParentForm(ComPtr<IDispatch> form)
        : m_form(std::move(form))
    { }

    IDispatch* Form() const { return m_form.Get(); }

    std::shared_ptr<HostObject> Control(StringView name) override;
    PixelPoint ScreenOrigin() override;
    void PopupMenu(HostObject& menu, double x, double y) override;

private:
    ComPtr<IDispatch> m_form;
};

} // namespace tolva::win32
