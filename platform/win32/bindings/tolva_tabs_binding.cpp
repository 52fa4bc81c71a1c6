#include "controls/tabs/tolva_tabs.h"
#include "platform/win32/bindings/tolva_tabs_event_forwarder.h"
#include "platform/win32/com/binder.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/font_binding.h"
#include <olectl.h>

// Defined by the type library's GUID file.
extern "C" const CLSID CLSID_TolvaTabs;
extern "C" const IID DIID__TolvaTabs;
extern "C" const IID DIID___TolvaTabs;

namespace tolva::win32 {

namespace {

using B = Binder<TolvaTabs>;
using C = TolvaTabs;

// Properties from 0x68030000 in the order the control declares them; its methods from five past
// the last property, in theirs (docs/win32.md).
const DispatchMember Members[] = {
    B::Property<&C::BackColor, &C::SetBackColor>(0x68030000, L"BackColor"),
    B::Property<&C::ForeColor, &C::SetForeColor>(0x68030001, L"ForeColor"),
    B::Property<&C::Enabled, &C::SetEnabled>(0x68030002, L"Enabled"),
    FontProperty(0x68030003, L"Font"),
    B::Property<&C::BorderColor, &C::SetBorderColor>(0x68030004, L"BorderColor"),
    B::Property<&C::TabCount>(0x68030005, L"TabCount"),
    B::Property<&C::Tabs, &C::SetTabs>(0x68030006, L"Tabs"),
    B::Property<&C::SelectedItem, &C::SetSelectedItem>(0x68030007, L"SelectedItem"),
    B::Property<&C::TabData, &C::SetTabData>(0x68030008, L"TabData"),
    B::Property<&C::BackColorInactive, &C::SetBackColorInactive>(0x68030009, L"BackColorInactive"),
    B::Property<&C::BackColorBehind, &C::SetBackColorBehind>(0x6803000A, L"BackColorBehind"),
    B::Property<&C::TabWidth, &C::SetTabWidth>(0x6803000B, L"TabWidth"),
    B::Method<&C::Clear>(0x60030010, L"Clear"),
    B::Method<&C::Refresh>(0x60030011, L"Refresh"),
    B::Method<&C::AddItem>(0x60030012, L"AddItem"),
    B::Method<&C::RemoveItem>(0x60030013, L"RemoveItem"),
    B::Method<&C::AboutBox>(DISPID_ABOUTBOX, L"AboutBox"),
};

} // namespace

extern const ControlClass TolvaTabsClass = {
    L"TolvaTabs",
    &CLSID_TolvaTabs,
    &DIID__TolvaTabs,
    &DIID___TolvaTabs,
    Members,
    &CreateHostedControl<TolvaTabs, TolvaTabsEventForwarder>,
};

} // namespace tolva::win32
