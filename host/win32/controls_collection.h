#pragma once
#include "host/win32/dispatch_object.h"

namespace tolva::host {

class HostForm;

// The form's Controls collection: Item(name or index) as its default member, and Count. The
// items are the controls' extenders and the menus, in the order of the form file.
class ControlsCollection final : public DispatchObject {
public:
    explicit ControlsCollection(HostForm& form)
        : m_form(&form)
    { }
    void Disconnect() { m_form = nullptr; }

    // The item with the name (ignoring case) or 0-based index; throws "Control not found" (730)
    // or "Subscript out of range" (9).
    IDispatch* Item(const VARIANT& key) const;

protected:
    std::span<const Member> Members() const override;
    HRESULT Call(DISPID id, WORD flags, std::span<VARIANT*> arguments, VARIANT* result) override;

private:
    HostForm* m_form;
};

} // namespace tolva::host
