#pragma once
#include "host/win32/controls_collection.h"
#include "host/win32/dispatch_object.h"
#include "platform/win32/com/com_ptr.h"

namespace tolva::host {

class HostForm;

// The form as its controls reach it through their extender's Parent, and as scripts see it:
// Name, Caption, hwnd, Controls, and PopupMenu menu, [flags], [x], [y] with x and y in twips of
// the form's client area.
class FormAutomation final : public DispatchObject {
public:
    explicit FormAutomation(HostForm& form);
    void Disconnect();

protected:
    std::span<const Member> Members() const override;
    HRESULT Call(DISPID id, WORD flags, std::span<VARIANT*> arguments, VARIANT* result) override;

private:
    HostForm* m_form;
    win32::ComPtr<ControlsCollection> m_controls;
};

} // namespace tolva::host
