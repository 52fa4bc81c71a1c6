#pragma once
#include "host/win32/controls_collection.h"
#include "platform/win32/com/bound_dispatch.h"
#include "platform/win32/com/com_ptr.h"
#include <optional>

namespace tolva::host {

class HostForm;

// The form as its controls reach it through their extender's Parent, and as scripts see it:
// Name, Caption, hwnd, Controls, and PopupMenu menu, [flags], [x], [y] with x and y in twips of
// the form's client area. Once disconnected from the form its members fail with E_UNEXPECTED.
class FormAutomation final : public win32::BoundDispatch {
public:
    explicit FormAutomation(HostForm& form);
    void Disconnect();

    String Name() const;
    String Caption() const;
    void SetCaption(StringView caption);
    int32_t Hwnd() const; // a window handle travels as a Long, as a form's hwnd does
    // Controls(name) is Controls.Item(name); without a name, the collection.
    IDispatch* Controls(const std::optional<Variant>& key) const;
    // menu is one of the form's menus; flags as PopupMenu's (alignment 4 and 8, right button 2).
    void PopupMenu(const VARIANT& menu, int32_t flags, std::optional<double> x, std::optional<double> y);

    static std::span<const win32::DispatchMember> Table();

private:
    HostForm& Form() const;

    HostForm* m_form;
    win32::ComPtr<ControlsCollection> m_controls;
};

} // namespace tolva::host
