#include "core/child_site.h"

namespace tolva {

ChildSite::ChildSite(ControlSite& container, const Surface& child, String name)
    : m_container(container)
    , m_child(child)
    , m_name(std::move(name))
{ }

void ChildSite::PropertyChanged(StringView)
{ }

Font ChildSite::AmbientFont()
{
    return m_container.AmbientFont();
}

bool ChildSite::UserMode()
{
    return m_container.UserMode();
}

bool ChildSite::DisplayAsDefault()
{
    return false;
}

String ChildSite::ExtenderName()
{
    return m_name;
}

float ChildSite::ExtenderWidth()
{
    return m_child.Width();
}

float ChildSite::ExtenderHeight()
{
    return m_child.Height();
}

ParentForm* ChildSite::Parent()
{
    return nullptr;
}

int ChildSite::MessageBox(StringView prompt, int style)
{
    return m_container.MessageBox(prompt, style);
}

void ChildSite::Beep()
{
    m_container.Beep();
}

void ChildSite::ShowAboutBox()
{
    m_container.ShowAboutBox();
}

Formatter& ChildSite::Formatting()
{
    return m_container.Formatting();
}

InputPopups& ChildSite::Popups()
{
    return m_container.Popups();
}

} // namespace tolva
