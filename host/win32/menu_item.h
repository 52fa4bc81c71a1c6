#pragma once
#include "host/form/form_object.h"
#include "platform/win32/com/bound_dispatch.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/window/menu_handle.h"
#include <functional>
#include <vector>

namespace tolva::host {

// A menu control of the form (a VB.Menu block) and its items: the automation object that
// Controls(name) hands out and PopupMenu takes back, with Name, Caption, Enabled, Checked and
// Visible. A caption of "-" is a separator.
class MenuItem final : public win32::BoundDispatch {
public:
    // Builds the menu and its items from the block; ids are given out from nextId upwards.
    // Refuses an item that is not a VB.Menu with the block's line.
    static win32::ComPtr<MenuItem> FromForm(const FormObject& definition, UINT& nextId);

    // The automation properties; a change calls the change handler.
    const String& Name() const { return m_definition.name; }
    const String& Caption() const { return m_caption; }
    void SetCaption(StringView caption);
    bool Enabled() const { return m_enabled; }
    void SetEnabled(bool enabled);
    bool Checked() const { return m_checked; }
    void SetChecked(bool checked);
    bool Visible() const { return m_visible; }
    void SetVisible(bool visible);
    UINT Id() const { return m_id; }
    const std::vector<win32::ComPtr<MenuItem>>& Items() const { return m_items; }

    // The item (this one or below) with the id or name, or nullptr.
    MenuItem* FindById(UINT id);
    MenuItem* FindByName(StringView name);

    // A pop-up menu of the visible items, submenus for items with items of their own. The
    // caller destroys it (DestroyMenu takes the submenus along).
    win32::MenuHandle CreatePopup() const;
    // The block as it stands now, for saving.
    FormObject ToForm() const;

    // Called after an automation call changed the menu (a menu bar shows it again).
    void SetChangeHandler(std::function<void()> changed);

    static std::span<const win32::DispatchMember> Table();

private:
    MenuItem()
        : BoundDispatch(this, Table())
    { }
    void Changed();
    void AppendItems(HMENU menu) const;

    FormObject m_definition; // the block as read, without its items
    String m_caption;
    bool m_enabled = true;
    bool m_checked = false;
    bool m_visible = true;
    UINT m_id = 0;
    std::vector<win32::ComPtr<MenuItem>> m_items;
    std::function<void()> m_changed;
};

} // namespace tolva::host
