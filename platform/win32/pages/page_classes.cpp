#include "platform/win32/pages/page_classes.h"
#include "pages/ppg_columns.h"
#include "pages/ppg_command.h"
#include "pages/ppg_input.h"
#include "pages/ppg_label.h"
#include "pages/ppg_list_general.h"
#include "pages/ppg_scroll.h"
#include "pages/ppg_tabs.h"
#include "platform/win32/com/control_class.h"
#include <array>
#include <string_view>

namespace tolva::win32 {

namespace {

template <class Page> std::unique_ptr<PropertyPage> Create(Surface& surface, ControlSite& site)
{
    return std::make_unique<Page>(surface, site);
}

const PageClass Command { L"ppgCommand", { 0xf05db81c, 0x800b, 0x47db, { 0xbe, 0x4c, 0x44, 0x5e, 0xb6, 0x40, 0x61, 0x8d } },
                          &Create<ppgCommand> };
const PageClass Label { L"ppgLabel", { 0x488c25fb, 0x0a86, 0x463f, { 0xb2, 0x8d, 0xdb, 0x53, 0xbd, 0xe7, 0x06, 0x1e } },
                        &Create<ppgLabel> };
const PageClass Input { L"ppgInput", { 0xec075120, 0xd569, 0x4450, { 0x8e, 0x52, 0x0f, 0xda, 0xef, 0x6d, 0x59, 0x99 } },
                        &Create<ppgInput> };
const PageClass Scroll { L"ppgScroll", { 0xa3a9b5e1, 0xea3a, 0x441f, { 0x90, 0x54, 0x94, 0x54, 0x54, 0x11, 0x4e, 0xf1 } },
                         &Create<ppgScroll> };
const PageClass Tabs { L"ppgTabs", { 0x1951a08c, 0x893d, 0x41ae, { 0xa1, 0x29, 0x2e, 0xde, 0xaa, 0xe5, 0x34, 0xbe } },
                       &Create<ppgTabs> };
const PageClass Columns { L"ppgColumns", { 0xf37d9ad1, 0xe524, 0x4417, { 0x8d, 0x6a, 0x28, 0x30, 0xb2, 0xdb, 0xc1, 0x85 } },
                          &Create<ppgColumns> };
const PageClass ListGeneral { L"ppgListGeneral",
                              { 0xbfa96013, 0x3fc0, 0x4a7f, { 0xa7, 0xee, 0xf0, 0xdb, 0xfe, 0x7f, 0xa8, 0x65 } },
                              &Create<ppgListGeneral> };

const std::array<const PageClass*, 7> All { &Command, &Label, &Input, &Scroll, &Tabs, &Columns, &ListGeneral };

struct ControlPages {
    std::wstring_view control;
    std::span<const PageClass* const> pages;
};
const std::array<const PageClass*, 1> CommandPages { &Command };
const std::array<const PageClass*, 1> LabelPages { &Label };
const std::array<const PageClass*, 1> InputPages { &Input };
const std::array<const PageClass*, 1> ScrollPages { &Scroll };
const std::array<const PageClass*, 1> TabsPages { &Tabs };
const std::array<const PageClass*, 2> ListPages { &ListGeneral, &Columns };
const std::array<ControlPages, 6> PagesByControl { {
    { L"TolvaCommand", CommandPages },
    { L"TolvaLabel", LabelPages },
    { L"TolvaInput", InputPages },
    { L"TolvaScroll", ScrollPages },
    { L"TolvaTabs", TabsPages },
    { L"TolvaList", ListPages },
} };

} // namespace

std::span<const PageClass* const> PageClasses()
{
    return All;
}

const PageClass* FindPageClass(REFCLSID clsid)
{
    for (const PageClass* page : All)
        if (page->clsid == clsid)
            return page;
    return nullptr;
}

std::span<const PageClass* const> PagesOf(const ControlClass& controlClass)
{
    for (const ControlPages& entry : PagesByControl)
        if (entry.control == controlClass.name)
            return entry.pages;
    return {};
}

} // namespace tolva::win32
