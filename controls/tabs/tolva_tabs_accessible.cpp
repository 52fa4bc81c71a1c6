// The tab strip as a screen reader reads it: a page tab list whose tabs are made when asked for.
#include "controls/tabs/tolva_tabs.h"
#include "core/caption.h"

namespace tolva {

namespace {

// Tab number index + 1, for as long as the strip has that many.
class TabItem final : public AccessibleElement {
public:
    TabItem(TolvaTabs& tabs, Surface& surface, int32_t index)
        : m_tabs(tabs)
        , m_surface(surface)
        , m_index(index)
    { }

    bool Exists() const override { return m_index < m_tabs.TabCount(); }

    AccessibleDescription Describe() const override
    {
        const String& caption = m_tabs.Tabs(m_index + 1);
        const bool selected = m_tabs.SelectedChild() == m_index;
        const uint32_t focused = m_tabs.FocusedChild() == m_index ? AccessibleState::Focused : 0;
        const double pitch = double(m_tabs.TabWidth()) + 75;
        return { .name = ScanCaption(caption).text,
            .role = AccessibleRole::PageTab,
            .state = SelectableItemState(m_surface, selected) | focused,
            .value = {},
            .shortcut = AccessKeyShortcut(caption),
            .defaultAction = u"Switch",
            .location = PixelRectOf(m_surface, pitch * m_index, 0, m_tabs.TabWidth(), m_tabs.RowHeight()) };
    }

    bool DoDefaultAction() override { return Select(); }

    // As a press on the tab: Change may refuse it.
    bool Select() override
    {
        if (!m_surface.Enabled())
            return false;
        m_tabs.SetSelectedItem(m_index + 1);
        return true;
    }

private:
    TolvaTabs& m_tabs;
    Surface& m_surface;
    int32_t m_index;
};

} // namespace

AccessibleDescription TolvaTabs::Describe() const
{
    return { .name = m_site.ExtenderName(),
        .role = AccessibleRole::PageTabList,
        .state = AccessibleStateOf(m_surface, MouseState {}, true),
        .value = {},
        .shortcut = {},
        .defaultAction = {},
        .location = {} };
}

std::unique_ptr<AccessibleElement> TolvaTabs::Child(int32_t index)
{
    if (index < 0 || index >= m_tabCount)
        return nullptr;
    return std::make_unique<TabItem>(*this, m_surface, index);
}

int32_t TolvaTabs::SelectedChild() const
{
    return m_selectedItem >= 1 && m_selectedItem <= m_tabCount ? m_selectedItem - 1 : None;
}

// The focus of the strip is on its selected tab.
int32_t TolvaTabs::FocusedChild() const
{
    return m_surface.HasFocus() ? SelectedChild() : None;
}

void TolvaTabs::OnGotFocus()
{
    m_surface.Announce(AccessibleEvent::Focus, FocusedChild());
}

} // namespace tolva
