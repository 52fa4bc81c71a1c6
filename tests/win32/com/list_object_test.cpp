// TolvaList through IDispatch, its connection point and its persistence, without a container:
// optional arguments and their defaults, Variant indices in every form a client may send, and
// bad input refused with an error rather than a crash.
#include "controls/list/tolva_list.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/hosted_object.h"
#include "tests/win32/support/persistence.h"
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

constexpr DISPID RowText = 0x68030018, RowData = 0x68030019, AddColumn = 0x60030022, AddRow = 0x60030023,
                 RemoveRow = 0x60030024;
constexpr HRESULT RowTextOutOfRange = HRESULT(0x800455F1);

HRESULT RunTime(int number)
{
    return HRESULT(0x800A0000u + unsigned(number));
}

using List = HostedObject<TolvaList>;

class ListObject : public testing::Test {
protected:
    // The error an Invoke reported: its HRESULT in EXCEPINFO for an automation error, else the
    // HRESULT itself.
    HRESULT Failure(DISPID id, WORD flags, std::initializer_list<VARIANT> arguments, UINT* argumentError = nullptr)
    {
        OleVariant result;
        ExceptionInfo info;
        const HRESULT hr = Call(d, id, flags, arguments, result, &info, argumentError);
        if (hr != DISP_E_EXCEPTION)
            return hr;
        source = info.bstrSource ? info.bstrSource : L"";
        return info.scode;
    }
    std::wstring Cell(std::initializer_list<VARIANT> index)
    {
        OleVariant text;
        EXPECT_EQ(Call(d, RowText, DISPATCH_PROPERTYGET, index, text), S_OK);
        return AsText(text);
    }
    void Fill(int rows)
    {
        OleVariant ignored;
        Call(d, AddColumn, DISPATCH_METHOD, { Text(L"Date") }, ignored);
        Call(d, AddColumn, DISPATCH_METHOD, { Text(L"Amount"), Long(1), Long(1500) }, ignored);
        for (int r = 1; r <= rows; ++r) {
            Call(d, AddRow, DISPATCH_METHOD, {}, ignored);
            const std::wstring text = L"row " + std::to_wstring(r);
            Call(d, RowText, DISPATCH_PROPERTYPUT, { Long(r), Long(1), Text(text.c_str()) }, ignored);
        }
    }

    List list { TolvaListClass };
    IDispatch* d = list.Dispatch();
    std::wstring source;
};

// AddColumn(Caption, [Alignment = tkColumnLeft], [cWidth = 1200]), AddRow([bBefore = -1]): left
// out at the end or passed as missing, the arguments take their defaults.
TEST_F(ListObject, OptionalArgumentsTakeTheirDefaults)
{
    OleVariant ignored;
    ASSERT_EQ(Call(d, AddColumn, DISPATCH_METHOD, { Text(L"Date") }, ignored), S_OK);
    ASSERT_EQ(Call(d, AddColumn, DISPATCH_METHOD, { Text(L"Amount"), Missing(), Long(900) }, ignored), S_OK);
    ASSERT_EQ(Call(d, AddColumn, DISPATCH_METHOD, { Text(L"Balance"), Long(1) }, ignored), S_OK);
    const TolvaList& core = list.Core();
    EXPECT_EQ(core.ColumnAlignment(1), 0);
    EXPECT_EQ(core.ColumnWidth(1), 1200);
    EXPECT_EQ(core.ColumnAlignment(2), 0);
    EXPECT_EQ(core.ColumnWidth(2), 900);
    EXPECT_EQ(core.ColumnAlignment(3), 1);
    EXPECT_EQ(core.ColumnWidth(3), 1200);

    ASSERT_EQ(Call(d, AddRow, DISPATCH_METHOD, {}, ignored), S_OK);
    ASSERT_EQ(Call(d, AddRow, DISPATCH_METHOD, { Missing() }, ignored), S_OK);
    EXPECT_EQ(core.NewIndex(), 2);
    ASSERT_EQ(Call(d, AddRow, DISPATCH_METHOD, { Short(1) }, ignored), S_OK);
    EXPECT_EQ(core.NewIndex(), 1);
    EXPECT_EQ(core.RowCount(), 3);

    UINT argumentError = 99;
    EXPECT_EQ(Failure(AddColumn, DISPATCH_METHOD, {}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(Failure(AddRow, DISPATCH_METHOD, { Long(1), Long(2) }), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(Failure(AddColumn, DISPATCH_METHOD, { Missing() }, &argumentError), DISP_E_PARAMNOTOPTIONAL);
    EXPECT_EQ(argumentError, 0u);
    EXPECT_EQ(Failure(RemoveRow, DISPATCH_METHOD, {}), DISP_E_BADPARAMCOUNT);
}

// Indices arrive as whatever the client holds: shorts, longs, doubles, by reference. The checked
// read answers its own error for any number outside the rows; a text row is a key, which rows
// do not have; an object is no index at all.
TEST_F(ListObject, VariantIndicesInEveryForm)
{
    Fill(3);
    LONG row = 2;
    VARIANT byReference;
    V_VT(&byReference) = VT_BYREF | VT_I4;
    V_I4REF(&byReference) = &row;
    EXPECT_EQ(Cell({ Short(2), Long(1) }), L"row 2");
    EXPECT_EQ(Cell({ Double(3.0), Double(1.0) }), L"row 3");
    EXPECT_EQ(Cell({ byReference, Long(1) }), L"row 2");
    EXPECT_EQ(Cell({ Long(1), Text(L"1") }), L"row 1");

    EXPECT_EQ(Failure(RowText, DISPATCH_PROPERTYGET, { Double(1e20), Long(1) }), RowTextOutOfRange);
    EXPECT_EQ(source, L"RowText");
    EXPECT_EQ(Failure(RowText, DISPATCH_PROPERTYGET, { Long(0), Long(1) }), RowTextOutOfRange);
    EXPECT_EQ(Failure(RowText, DISPATCH_PROPERTYGET, { Long(1), Long(3) }), RowTextOutOfRange);
    EXPECT_EQ(Failure(RowText, DISPATCH_PROPERTYGET, { Text(L"2"), Long(1) }), RunTime(5));
    EXPECT_EQ(Failure(RowText, DISPATCH_PROPERTYGET, { Text(L"two"), Long(1) }), RunTime(13));
    UINT argumentError = 99;
    EXPECT_EQ(Failure(RowText, DISPATCH_PROPERTYGET, { Object(d), Long(1) }, &argumentError), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(argumentError, 1u); // DISPPARAMS holds the arguments last first

    // The unchecked write: a huge row overflows the collection's index, a row past the end is
    // out of its range.
    EXPECT_EQ(Failure(RowText, DISPATCH_PROPERTYPUT, { Double(1e20), Long(1), Text(L"x") }), RunTime(6));
    EXPECT_EQ(Failure(RowText, DISPATCH_PROPERTYPUT, { Long(9), Long(0), Text(L"x") }), RunTime(9));
    EXPECT_EQ(Failure(RowText, DISPATCH_PROPERTYPUT, { Long(1), Object(d), Text(L"x") }), DISP_E_TYPEMISMATCH);
}

TEST_F(ListObject, RowDataIsALongVariant)
{
    Fill(2);
    OleVariant ignored;
    ASSERT_EQ(Call(d, RowData, DISPATCH_PROPERTYPUT, { Long(2), Text(L"41") }, ignored), S_OK);
    OleVariant value;
    ASSERT_EQ(Call(d, RowData, DISPATCH_PROPERTYGET, { Double(2) }, value), S_OK);
    EXPECT_EQ(V_VT(&value.Get()), VT_I4);
    EXPECT_EQ(AsLong(value), 41);
    EXPECT_EQ(Failure(RowData, DISPATCH_PROPERTYPUT, { Long(2), Object(d) }), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(Failure(RowData, DISPATCH_PROPERTYPUT, { Long(2), Text(L"many") }), RunTime(13));
    EXPECT_EQ(Failure(RowData, DISPATCH_PROPERTYGET, { Long(3) }), RunTime(9));
}

// Widths are stored as given; one that overflows the column positions fails the repaint, and
// the assignment reports it.
TEST_F(ListObject, WidthsAreStoredAndOverflowIsReported)
{
    Fill(1);
    OleVariant ignored;
    EXPECT_EQ(Put(d, L"ColumnWidth", Long(-300)), DISP_E_BADPARAMCOUNT); // the index is needed
    EXPECT_EQ(Failure(0x6803000C, DISPATCH_PROPERTYPUT, { Short(2), Long(0x7FFFFFFF) }), RunTime(6));
    EXPECT_EQ(list.Core().ColumnWidth(2), 0x7FFFFFFF);
    // A negative first column pulls the second back within reach.
    EXPECT_EQ(Call(d, 0x6803000C, DISPATCH_PROPERTYPUT, { Short(1), Long(-300) }, ignored), S_OK);
    EXPECT_EQ(list.Core().ColumnWidth(1), -300);
    EXPECT_EQ(Failure(0x6803000C, DISPATCH_PROPERTYPUT, { Short(3), Long(1) }), RunTime(9));
    EXPECT_EQ(Failure(0x6803000C, DISPATCH_PROPERTYPUT, { Long(70000), Long(1) }), DISP_E_OVERFLOW);
}

TEST_F(ListObject, SelectionChangedReachesTheSink)
{
    auto sink = ComPtr<EventSink>::Adopt(new EventSink(*TolvaListClass.eventIid));
    ASSERT_NE(Advise(list.Unknown(), *TolvaListClass.eventIid, sink.Get()), 0u);
    Fill(5);
    Put(d, L"ListIndex", Long(9));
    Put(d, L"ListIndex", Long(5));
    EXPECT_EQ(sink->Ids(), std::vector<DISPID> { 9 });
    int16_t key = 40, shift = 0;
    list.Input().OnKeyUp(key, shift);
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { 9, 5 }));
}

// Columns are saved as four arrays and rows as their count alone. That the values come back is
// the round trip's to show (round_trip_test.cpp).
TEST_F(ListObject, ColumnsAreSavedAsArraysAndRowsAsTheirCount)
{
    Fill(2);
    auto bag = SavedBag(list.Unknown(), FALSE);
    ASSERT_TRUE(bag);
    EXPECT_EQ(V_I4(bag->Find(L"ColumnTextCount")), 2);
    EXPECT_EQ(V_I4(bag->Find(L"ColumnWidth2")), 1500);
    EXPECT_EQ(V_I4(bag->Find(L"RowCount")), 2);
}

TEST_F(ListObject, ABagWithImpossibleCountsLeavesTheListAsItWas)
{
    Fill(1);
    auto bag = ComPtr<RecordingPropertyBag>::Adopt(new RecordingPropertyBag);
    bag->Put(L"ColumnCount", Long(2000000000));
    EXPECT_TRUE(FAILED(LoadBag(list.Unknown(), bag.Get())));
    EXPECT_EQ(list.Core().ColumnCount(), 2);
    EXPECT_EQ(list.Core().RowCount(), 1);
}

} // namespace
} // namespace tolva::win32::test
