#include "host/win32/menu_item.h"
#include "core/automation_error.h"
#include "host/form/form_syntax_error.h"
#include "platform/win32/com/binder.h"
#include "platform/win32/com/bstr.h"

namespace tolva::host {

namespace {

using B = win32::Binder<MenuItem>;
using M = MenuItem;

const win32::DispatchMember MenuMembers[] = {
    B::Property<&M::Name>(1, L"Name"),
    B::Property<&M::Caption, &M::SetCaption>(2, L"Caption"),
    B::Property<&M::Enabled, &M::SetEnabled>(3, L"Enabled"),
    B::Property<&M::Checked, &M::SetChecked>(4, L"Checked"),
    B::Property<&M::Visible, &M::SetVisible>(5, L"Visible"),
};

bool Flag(const FormObject& definition, StringView key, bool fallback)
{
    const FormProperty* property = definition.Find(key);
    if (!property)
        return fallback;
    try {
        return property->value.ToBool();
    } catch (const AutomationError&) {
        throw FormSyntaxError(property->line, ToUtf8(key) + " must be True or False");
    }
}

} // namespace

win32::ComPtr<MenuItem> MenuItem::FromForm(const FormObject& definition, UINT& nextId)
{
    if (!SameIdentifier(definition.type, u"VB.Menu"))
        throw FormSyntaxError(definition.line, "a menu holds only VB.Menu blocks, not " + ToUtf8(definition.type));
    auto item = win32::ComPtr<MenuItem>::Adopt(new MenuItem());
    item->m_definition = FormObject(definition.type, definition.name, definition.line);
    item->m_definition.properties = definition.properties;
    item->m_id = nextId++;
    if (const FormProperty* caption = definition.Find(u"Caption")) {
        if (!caption->value.Holds<String>())
            throw FormSyntaxError(caption->line, "Caption must be a text");
        item->m_caption = caption->value.ToString();
    }
    item->m_enabled = Flag(definition, u"Enabled", true);
    item->m_checked = Flag(definition, u"Checked", false);
    item->m_visible = Flag(definition, u"Visible", true);
    for (const FormObject& child : definition.children)
        item->m_items.push_back(FromForm(child, nextId));
    return item;
}

MenuItem* MenuItem::FindById(UINT id)
{
    if (m_id == id)
        return this;
    for (auto& item : m_items)
        if (MenuItem* found = item->FindById(id))
            return found;
    return nullptr;
}

MenuItem* MenuItem::FindByName(StringView name)
{
    if (SameIdentifier(Name(), name))
        return this;
    for (auto& item : m_items)
        if (MenuItem* found = item->FindByName(name))
            return found;
    return nullptr;
}

win32::MenuHandle MenuItem::CreatePopup() const
{
    win32::MenuHandle menu(CreatePopupMenu());
    if (menu)
        AppendItems(menu.get());
    return menu;
}

void MenuItem::AppendItems(HMENU menu) const
{
    for (const auto& item : m_items) {
        if (!item->m_visible)
            continue;
        if (item->m_caption == u"-") {
            AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
            continue;
        }
        const UINT flags = MF_STRING | (item->m_enabled ? MF_ENABLED : MF_GRAYED) | (item->m_checked ? MF_CHECKED : 0);
        if (item->m_items.empty())
            AppendMenuW(menu, flags, item->m_id, win32::WidePointer(item->m_caption));
        else
            win32::AppendSubmenu(menu, flags, item->CreatePopup(), win32::WidePointer(item->m_caption));
    }
}

FormObject MenuItem::ToForm() const
{
    FormObject form = m_definition;
    if (!m_caption.empty() || form.Find(u"Caption"))
        form.Set(u"Caption", m_caption);
    // The flags are written only where they differ from a new menu's.
    const auto flag = [&form](StringView key, bool value, bool fallback) {
        if (value != fallback || form.Find(key))
            form.Set(key, value);
    };
    flag(u"Enabled", m_enabled, true);
    flag(u"Checked", m_checked, false);
    flag(u"Visible", m_visible, true);
    for (const auto& item : m_items)
        form.children.push_back(item->ToForm());
    return form;
}

void MenuItem::SetChangeHandler(std::function<void()> changed)
{
    m_changed = changed;
    for (auto& item : m_items)
        item->SetChangeHandler(changed);
}

std::span<const win32::DispatchMember> MenuItem::Table()
{
    return MenuMembers;
}

void MenuItem::SetCaption(StringView caption)
{
    m_caption = caption;
    Changed();
}

void MenuItem::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    Changed();
}

void MenuItem::SetChecked(bool checked)
{
    m_checked = checked;
    Changed();
}

void MenuItem::SetVisible(bool visible)
{
    m_visible = visible;
    Changed();
}

void MenuItem::Changed()
{
    if (m_changed)
        m_changed();
}

} // namespace tolva::host
