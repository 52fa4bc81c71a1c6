#include "pages/ppg_input.h"
#include "pages/page_layout.h"

namespace tolva {

ppgInput::ppgInput(Surface& surface, ControlSite& site)
    : PropertyPage(surface, site, u"General", PageLayout::Width, PageLayout::Height)
    , m_txtText(AddTextBox(PageLayout::Field(0)))
    , m_txtMaxLength(AddTextBox(PageLayout::Field(1, 1200)))
    , m_chkLocked(AddCheckBox(u"Locked", PageLayout::Check(2)))
    , m_chkSelectionTracking(AddCheckBox(u"SelectionTracking", PageLayout::Check(3)))
{
    AddTitle(PageLayout::Title());
    AddLabel(u"Text", PageLayout::Label(0));
    AddLabel(u"MaxLength", PageLayout::Label(1));
    m_txtText.SelectAllOnFocus();
    m_txtMaxLength.SelectAllOnFocus();
}

void ppgInput::SelectionChanged()
{
    PageTarget& control = FirstSelected();
    LoadCheck(m_chkSelectionTracking, u"SelectionTracking");
    m_txtText.SetText(control.Read(u"Text").ToString());
    m_txtMaxLength.SetText(control.Read(u"MaxLength").ToString());
    LoadCheck(m_chkLocked, u"Locked");
}

// MaxLength goes as text: the property's own assignment converts it.
void ppgInput::ApplyChanges()
{
    PageTarget& control = FirstSelected();
    ApplyCheck(m_chkSelectionTracking, u"SelectionTracking");
    control.Write(u"Text", m_txtText.Text());
    control.Write(u"MaxLength", m_txtMaxLength.Text());
    ApplyCheck(m_chkLocked, u"Locked");
}

} // namespace tolva
