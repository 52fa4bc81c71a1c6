#include "pages/ppg_command.h"
#include "pages/page_layout.h"

namespace tolva {

ppgCommand::ppgCommand(Surface& surface, ControlSite& site)
    : PropertyPage(surface, site, u"General", PageLayout::Width, PageLayout::Height)
    , m_txtCaption(AddTextBox(PageLayout::Field(0)))
    , m_txtMenuName(surface, site, u"txtMenuName")
    , m_chkEnabled(AddCheckBox(u"Enabled", PageLayout::Check(2)))
{
    AddTitle(PageLayout::Title());
    AddLabel(u"&Caption", PageLayout::Label(0));
    AddLabel(u"Menu &Name", PageLayout::Label(1));
    const FieldPlace menu = PageLayout::Field(1);
    m_txtMenuName.Window().Move(menu.left, menu.top, menu.width, menu.height);
    m_txtMenuName->InitProperties();
    m_txtMenuName->SetText(u"");
    m_txtMenuName->SetEventListener(this);
}

ppgCommand::~ppgCommand()
{
    m_txtMenuName->SetEventListener(nullptr);
}

void ppgCommand::SelectionChanged()
{
    PageTarget& control = FirstSelected();
    m_txtCaption.SetText(control.Read(u"Caption").ToString());
    m_txtMenuName->SetText(control.Read(u"MenuName").ToString());
    LoadCheck(m_chkEnabled, u"Enabled");
}

void ppgCommand::ApplyChanges()
{
    PageTarget& control = FirstSelected();
    control.Write(u"Caption", m_txtCaption.Text());
    control.Write(u"MenuName", m_txtMenuName->Text());
    ApplyCheck(m_chkEnabled, u"Enabled");
}

} // namespace tolva
