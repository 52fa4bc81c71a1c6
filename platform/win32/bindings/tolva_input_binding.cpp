#include "controls/input/tolva_input.h"
#include "platform/win32/bindings/tolva_input_event_forwarder.h"
#include "platform/win32/com/binder.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/font_binding.h"
#include <olectl.h>

// Defined by the type library's GUID file.
extern "C" const CLSID CLSID_TolvaInput;
extern "C" const IID DIID__TolvaInput;
extern "C" const IID DIID___TolvaInput;

namespace tolva::win32 {

namespace {

using B = Binder<TolvaInput>;
using C = TolvaInput;

// One number per member in the order of the interface: properties 0x6803nnnn, methods
// 0x6003nnnn, AboutBox at the standard id.
const DispatchMember Members[] = {
    B::Method<&C::AboutBox>(DISPID_ABOUTBOX, L"AboutBox"),
    B::Property<&C::BackColor, &C::SetBackColor>(0x68030000, L"BackColor"),
    B::Property<&C::ForeColor, &C::SetForeColor>(0x68030001, L"ForeColor"),
    B::Property<&C::Enabled, &C::SetEnabled>(0x68030002, L"Enabled"),
    FontProperty(0x68030003, L"Font"),
    B::Method<&C::PopupWindowCallback>(0x60030004, L"PopupWindowCallback", { { 1, 0 } }),
    B::Method<&C::Refresh>(0x60030005, L"Refresh"),
    B::Method<&C::AddItem>(0x60030006, L"AddItem", { { 1 } }),
    B::Property<&C::List, &C::SetList>(0x68030007, L"List"),
    B::Property<&C::ListCount>(0x68030008, L"ListCount"),
    B::Property<&C::ListIndex, &C::SetListIndex>(0x68030009, L"ListIndex"),
    B::Property<&C::Locked, &C::SetLocked>(0x6803000A, L"Locked"),
    B::Property<&C::MaxLength, &C::SetMaxLength>(0x6803000B, L"MaxLength"),
    B::Property<&C::NewIndex>(0x6803000C, L"NewIndex"),
    B::Method<&C::RemoveItem>(0x6003000D, L"RemoveItem"),
    B::Property<&C::SelLength, &C::SetSelLength>(0x6803000E, L"SelLength"),
    B::Property<&C::SelStart, &C::SetSelStart>(0x6803000F, L"SelStart"),
    B::Property<&C::SelText, &C::SetSelText>(0x68030010, L"SelText"),
    B::Property<&C::Sorted>(0x68030011, L"Sorted"),
    B::Property<&C::Text, &C::SetText>(0x68030012, L"Text"),
    B::Property<&C::Style, &C::SetStyle>(0x68030013, L"Style", Enum(L"tkInputStyles")),
    B::Property<&C::ddBackColor, &C::SetddBackColor>(0x68030014, L"ddBackColor"),
    B::Property<&C::ddBackColorActive, &C::SetddBackColorActive>(0x68030015, L"ddBackColorActive"),
    B::Property<&C::ddBackColorPushed, &C::SetddBackColorPushed>(0x68030016, L"ddBackColorPushed"),
    B::Property<&C::SelectionTracking, &C::SetSelectionTracking>(0x68030017, L"SelectionTracking"),
    B::Property<&C::FormatString, &C::SetFormatString>(0x68030018, L"FormatString"),
};

} // namespace

extern const ControlClass TolvaInputClass = {
    L"TolvaInput",
    &CLSID_TolvaInput,
    &DIID__TolvaInput,
    &DIID___TolvaInput,
    Members,
    &CreateHostedControl<TolvaInput, TolvaInputEventForwarder>,
};

} // namespace tolva::win32
