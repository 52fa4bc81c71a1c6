#include "pages/ppg_list_general.h"
#include "pages/page_layout.h"

namespace tolva {

ppgListGeneral::ppgListGeneral(Surface& surface, ControlSite& site)
    : PropertyPage(surface, site, u"General", PageLayout::Width, PageLayout::Height)
    , m_chkShowColumnHeaders(AddCheckBox(u"ShowColumnHeaders", PageLayout::Check(0, PageLayout::Margin)))
    , m_chkSelectionTracking(AddCheckBox(u"SelectionTracking", PageLayout::Check(1, PageLayout::Margin)))
    , m_txtRowHeight(AddTextBox(PageLayout::Field(2, 1200)))
{
    AddTitle(PageLayout::Title());
    AddLabel(u"RowHeight", PageLayout::Label(2));
}

void ppgListGeneral::SelectionChanged()
{
    LoadCheck(m_chkShowColumnHeaders, u"ShowColumnHeaders");
    LoadCheck(m_chkSelectionTracking, u"SelectionTracking");
    m_txtRowHeight.SetText(FirstSelected().Read(u"RowHeight").ToString());
}

void ppgListGeneral::ApplyChanges()
{
    ApplyCheck(m_chkShowColumnHeaders, u"ShowColumnHeaders");
    ApplyCheck(m_chkSelectionTracking, u"SelectionTracking");
    FirstSelected().Write(u"RowHeight", m_txtRowHeight.Text());
}

} // namespace tolva
