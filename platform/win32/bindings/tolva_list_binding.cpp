#include "controls/list/tolva_list.h"
#include "platform/win32/bindings/tolva_list_event_forwarder.h"
#include "platform/win32/com/binder.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/font_binding.h"
#include <olectl.h>

// Defined by the type library's GUID file.
extern "C" const CLSID CLSID_TolvaList;
extern "C" const IID DIID__TolvaList;
extern "C" const IID DIID___TolvaList;

namespace tolva::win32 {

namespace {

using B = Binder<TolvaList>;
using C = TolvaList;

// Properties from 0x68030000 in declaration order, Refresh five past the last one and the other
// methods after it (docs/win32.md).
const DispatchMember Members[] = {
    B::Property<&C::Enabled, &C::SetEnabled>(0x68030000, L"Enabled"),
    FontProperty(0x68030001, L"Font"),
    B::Property<&C::BorderStyle, &C::SetBorderStyle>(0x68030002, L"BorderStyle", Enum(L"tkListBorderStyle")),
    B::Property<&C::BackColorHeader, &C::SetBackColorHeader>(0x68030003, L"BackColorHeader"),
    B::Property<&C::BackColorHighlight, &C::SetBackColorHighlight>(0x68030004, L"BackColorHighlight"),
    B::Property<&C::BackColorRowA, &C::SetBackColorRowA>(0x68030005, L"BackColorRowA"),
    B::Property<&C::BackColorRowB, &C::SetBackColorRowB>(0x68030006, L"BackColorRowB"),
    B::Property<&C::BorderColor, &C::SetBorderColor>(0x68030007, L"BorderColor"),
    B::Property<&C::ColumnCount>(0x68030008, L"ColumnCount"),
    B::Property<&C::ColumnAlignment, &C::SetColumnAlignment>(
        0x68030009, L"ColumnAlignment", Enum(L"tkColumnAlignment")),
    B::Property<&C::ColumnFormat, &C::SetColumnFormat>(0x6803000A, L"ColumnFormat"),
    B::Property<&C::ColumnText, &C::SetColumnText>(0x6803000B, L"ColumnText"),
    B::Property<&C::ColumnWidth, &C::SetColumnWidth>(0x6803000C, L"ColumnWidth"),
    B::Property<&C::ForeColorHeader, &C::SetForeColorHeader>(0x6803000D, L"ForeColorHeader"),
    B::Property<&C::ForeColorHighlight, &C::SetForeColorHighlight>(0x6803000E, L"ForeColorHighlight"),
    B::Property<&C::ForeColorRowA, &C::SetForeColorRowA>(0x6803000F, L"ForeColorRowA"),
    B::Property<&C::ForeColorRowB, &C::SetForeColorRowB>(0x68030010, L"ForeColorRowB"),
    B::Property<&C::GridColor, &C::SetGridColor>(0x68030011, L"GridColor"),
    B::Property<&C::RowCount>(0x68030012, L"RowCount"),
    B::Property<&C::RowHeight, &C::SetRowHeight>(0x68030013, L"RowHeight"),
    B::Property<&C::GridStyle, &C::SetGridStyle>(0x68030014, L"GridStyle", Enum(L"tkGridStyles")),
    B::Property<&C::SelectionTracking, &C::SetSelectionTracking>(0x68030015, L"SelectionTracking"),
    B::Property<&C::ShowColumnHeaders, &C::SetShowColumnHeaders>(0x68030016, L"ShowColumnHeaders"),
    B::Property<&C::AutoRefresh, &C::SetAutoRefresh>(0x68030017, L"AutoRefresh"),
    B::Property<&C::RowText, &C::SetRowText>(0x68030018, L"RowText"),
    B::Property<&C::RowData, &C::SetRowData>(0x68030019, L"RowData"),
    B::Property<&C::NewIndex, &C::SetNewIndex>(0x6803001A, L"NewIndex"),
    B::Property<&C::ListIndex, &C::SetListIndex>(0x6803001B, L"ListIndex"),
    B::Property<&C::TopIndex, &C::SetTopIndex>(0x6803001C, L"TopIndex"),
    B::Method<&C::Refresh>(0x60030021, L"Refresh"),
    B::Method<&C::AddColumn>(0x60030022, L"AddColumn",
        { { 1, tkColumnAlignment::tkColumnLeft, L"tkColumnAlignment" }, { 2, 1200 } }),
    B::Method<&C::AddRow>(0x60030023, L"AddRow", { { 0, -1 } }),
    B::Method<&C::RemoveRow>(0x60030024, L"RemoveRow"),
    B::Method<&C::RemoveColumn>(0x60030025, L"RemoveColumn"),
    B::Method<&C::ColumnClear>(0x60030026, L"ColumnClear"),
    B::Method<&C::Clear>(0x60030027, L"Clear"),
    B::Method<&C::AboutBox>(DISPID_ABOUTBOX, L"AboutBox"),
};

} // namespace

extern const ControlClass TolvaListClass = {
    L"TolvaList",
    &CLSID_TolvaList,
    &DIID__TolvaList,
    &DIID___TolvaList,
    Members,
    &CreateHostedControl<TolvaList, TolvaListEventForwarder>,
};

} // namespace tolva::win32
