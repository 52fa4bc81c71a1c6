#include "controls/command/tolva_command.h"
#include "platform/win32/bindings/tolva_command_event_forwarder.h"
#include "platform/win32/com/binder.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/font_binding.h"
#include <olectl.h>

// Defined by the type library's GUID file.
extern "C" const CLSID CLSID_TolvaCommand;
extern "C" const IID DIID__TolvaCommand;
extern "C" const IID DIID___TolvaCommand;

namespace tolva::win32 {

namespace {

using B = Binder<TolvaCommand>;
using C = TolvaCommand;

const DispatchMember Members[] = {
    B::Property<&C::Style, &C::SetStyle>(0x68030000, L"Style", Enum(L"tkStyle")),
    B::Property<&C::Caption, &C::SetCaption>(0x68030001, L"Caption"),
    B::Property<&C::BackColorPushed, &C::SetBackColorPushed>(0x68030002, L"BackColorPushed"),
    B::Property<&C::MenuName, &C::SetMenuName>(0x68030003, L"MenuName"),
    FontProperty(0x68030005, L"Font"),
    B::Property<&C::Enabled, &C::SetEnabled>(0x68030006, L"Enabled"),
    B::Property<&C::ForeColor, &C::SetForeColor>(0x68030007, L"ForeColor"),
    B::Property<&C::ForeColorDisabled, &C::SetForeColorDisabled>(0x68030008, L"ForeColorDisabled"),
    B::Property<&C::BackColor, &C::SetBackColor>(0x68030009, L"BackColor"),
    B::Property<&C::BackColorActive, &C::SetBackColorActive>(0x6803000A, L"BackColorActive"),
    B::Property<&C::Alignment, &C::SetAlignment>(0x6803000B, L"Alignment", Enum(L"tkCommandAlignment")),
    B::Method<&C::Refresh>(0x60030010, L"Refresh"),
    B::Method<&C::AboutBox>(DISPID_ABOUTBOX, L"AboutBox"),
};

} // namespace

extern const ControlClass TolvaCommandClass = {
    L"TolvaCommand",
    &CLSID_TolvaCommand,
    &DIID__TolvaCommand,
    &DIID___TolvaCommand,
    Members,
    &CreateHostedControl<TolvaCommand, TolvaCommandEventForwarder>,
    Behaviours::Button,
};

} // namespace tolva::win32
