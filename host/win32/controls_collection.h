#pragma once
#include "core/variant.h"
#include "platform/win32/com/bound_dispatch.h"

namespace tolva::host {

class HostForm;

// The form's Controls collection: Item(name or index) as its default member, and Count. The
// items are the controls' extenders and the menus, in the order of the form file. Once
// disconnected from the form its members fail with E_UNEXPECTED.
class ControlsCollection final : public win32::BoundDispatch {
public:
    explicit ControlsCollection(HostForm& form)
        : BoundDispatch(this, Table())
        , m_form(&form)
    { }
    void Disconnect() { m_form = nullptr; }

    // The item with the name (ignoring case) or 0-based index; throws "Control not found" (730)
    // or "Subscript out of range" (9).
    IDispatch* Item(const Variant& key) const;
    int32_t Count() const;

    static std::span<const win32::DispatchMember> Table();

private:
    HostForm& Form() const;

    HostForm* m_form;
};

} // namespace tolva::host
