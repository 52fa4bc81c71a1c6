#include "controls/scroll/tolva_scroll.h"
#include "platform/win32/bindings/tolva_scroll_event_forwarder.h"
#include "platform/win32/com/binder.h"
#include "platform/win32/com/control_class.h"
#include <olectl.h>

// Defined by the type library's GUID file.
extern "C" const CLSID CLSID_TolvaScroll;
extern "C" const IID DIID__TolvaScroll;
extern "C" const IID DIID___TolvaScroll;

namespace tolva::win32 {

namespace {

using B = Binder<TolvaScroll>;
using C = TolvaScroll;

// The type library gives no other ids for this control: properties from 0x68030000 in the order
// the control declares them, Refresh five past the last one, as the other controls number theirs.
const DispatchMember Members[] = {
    B::Property<&C::Enabled, &C::SetEnabled>(0x68030000, L"Enabled"),
    B::Property<&C::BackColor, &C::SetBackColor>(0x68030001, L"BackColor"),
    B::Property<&C::BackColorActive, &C::SetBackColorActive>(0x68030002, L"BackColorActive"),
    B::Property<&C::BackColorPushed, &C::SetBackColorPushed>(0x68030003, L"BackColorPushed"),
    B::Property<&C::ForeColor, &C::SetForeColor>(0x68030004, L"ForeColor"),
    B::Property<&C::ForeColorActive, &C::SetForeColorActive>(0x68030005, L"ForeColorActive"),
    B::Property<&C::ForeColorPushed, &C::SetForeColorPushed>(0x68030006, L"ForeColorPushed"),
    B::Property<&C::Value, &C::SetValue>(0x68030007, L"Value"),
    B::Property<&C::Min, &C::SetMin>(0x68030008, L"Min"),
    B::Property<&C::Max, &C::SetMax>(0x68030009, L"Max"),
    B::Property<&C::LargeChange, &C::SetLargeChange>(0x6803000A, L"LargeChange"),
    B::Property<&C::SmallChange, &C::SetSmallChange>(0x6803000B, L"SmallChange"),
    B::Method<&C::Refresh>(0x60030010, L"Refresh"),
    B::Method<&C::AboutBox>(DISPID_ABOUTBOX, L"AboutBox"),
};

} // namespace

extern const ControlClass TolvaScrollClass = {
    L"TolvaScroll",
    &CLSID_TolvaScroll,
    &DIID__TolvaScroll,
    &DIID___TolvaScroll,
    Members,
    &CreateHostedControl<TolvaScroll, TolvaScrollEventForwarder>,
};

} // namespace tolva::win32
