#include "pages/ppg_scroll.h"
#include "pages/page_layout.h"

namespace tolva {

ppgScroll::ppgScroll(Surface& surface, ControlSite& site)
    : PropertyPage(surface, site, u"General", PageLayout::Width, PageLayout::Height)
{
    AddTitle(PageLayout::Title());
    for (size_t i = 0; i < Properties.size(); ++i) {
        AddLabel(Properties[i], PageLayout::Label(int(i)));
        m_boxes[i] = &AddTextBox(PageLayout::Field(int(i), 1200));
        m_boxes[i]->SelectAllOnFocus();
    }
}

void ppgScroll::SelectionChanged()
{
    for (size_t i = 0; i < Properties.size(); ++i)
        m_boxes[i]->SetText(FirstSelected().Read(Properties[i]).ToString());
}

void ppgScroll::ApplyChanges()
{
    for (size_t i = 0; i < Properties.size(); ++i)
        FirstSelected().Write(Properties[i], m_boxes[i]->Text());
}

} // namespace tolva
