#include "controls/label/tolva_label.h"
#include "platform/win32/bindings/tolva_label_event_forwarder.h"
#include "platform/win32/com/binder.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/font_binding.h"
#include <olectl.h>

// Defined by the type library's GUID file.
extern "C" const CLSID CLSID_TolvaLabel;
extern "C" const IID DIID__TolvaLabel;
extern "C" const IID DIID___TolvaLabel;

namespace tolva::win32 {

namespace {

using B = Binder<TolvaLabel>;
using C = TolvaLabel;

const DispatchMember Members[] = {
    B::Property<&C::BackColorPushed, &C::SetBackColorPushed>(0x68030000, L"BackColorPushed"),
    B::Property<&C::BackColorActive, &C::SetBackColorActive>(0x68030001, L"BackColorActive"),
    B::Property<&C::ForeColorPushed, &C::SetForeColorPushed>(0x68030002, L"ForeColorPushed"),
    B::Property<&C::ArrowPosition, &C::SetArrowPosition>(0x68030003, L"ArrowPosition", Enum(L"tkArrowPosition")),
    B::Property<&C::ArrowIcon, &C::SetArrowIcon>(0x68030004, L"ArrowIcon", Enum(L"tkArrowIcon")),
    B::Property<&C::ForeColorActive, &C::SetForeColorActive>(0x68030005, L"ForeColorActive"),
    B::Property<&C::Caption, &C::SetCaption>(0x68030006, L"Caption"),
    B::Property<&C::MenuName, &C::SetMenuName>(0x68030007, L"MenuName"),
    B::Property<&C::Kerning, &C::SetKerning>(0x68030008, L"Kerning"),
    B::Property<&C::BorderStyle, &C::SetBorderStyle>(0x68030009, L"BorderStyle", Enum(L"tkLabelBorderStyle")),
    FontProperty(0x6803000A, L"Font"),
    B::Property<&C::Enabled, &C::SetEnabled>(0x6803000B, L"Enabled"),
    B::Property<&C::ForeColor, &C::SetForeColor>(0x6803000C, L"ForeColor"),
    B::Property<&C::ForeColorDisabled, &C::SetForeColorDisabled>(0x6803000D, L"ForeColorDisabled"),
    B::Property<&C::BackColor, &C::SetBackColor>(0x6803000E, L"BackColor"),
    B::Property<&C::Alignment, &C::SetAlignment>(0x6803000F, L"Alignment", Enum(L"tkLabelAlignment")),
    B::Method<&C::Refresh>(0x60030014, L"Refresh"),
    B::Method<&C::AboutBox>(DISPID_ABOUTBOX, L"AboutBox"),
};

} // namespace

extern const ControlClass TolvaLabelClass = {
    L"TolvaLabel",
    &CLSID_TolvaLabel,
    &DIID__TolvaLabel,
    &DIID___TolvaLabel,
    Members,
    &CreateHostedControl<TolvaLabel, TolvaLabelEventForwarder>,
    Behaviours::NoFocus,
};

} // namespace tolva::win32
