// TolvaInput through IDispatch and its connection point, without a container: the [in, out] and
// optional arguments of PopupWindowCallback and AddItem, the list box's errors, and hostile values
// answered by an error or the value itself. What it saves is the core control's to show
// (tests/unit/input) and the round trip's (round_trip_test.cpp).
#include "controls/input/tolva_input.h"
#include "platform/win32/com/bstr.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/hosted_object.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
extern const ControlClass TolvaInputClass;
}

namespace tolva::win32::test {
namespace {

constexpr DISPID ChangeId = 1;
constexpr HRESULT InvalidPropertyValue = HRESULT(0x800A017C);

using Input = HostedObject<TolvaInput>;

class InputObject : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(Advise(input.Unknown(), *TolvaInputClass.eventIid, sink.Get()), 0u); }

    HRESULT Method(const wchar_t* name, std::initializer_list<VARIANT> arguments, EXCEPINFO* exception = nullptr)
    {
        OleVariant result;
        return Call(d, IdOf(d, name), DISPATCH_METHOD, arguments, result, exception);
    }
    std::wstring ReadText(const wchar_t* name)
    {
        OleVariant value;
        EXPECT_EQ(Get(d, name, value), S_OK);
        return AsText(value);
    }
    LONG ReadNumber(const wchar_t* name)
    {
        OleVariant value;
        EXPECT_EQ(Get(d, name, value), S_OK);
        return AsLong(value);
    }

    Input input { TolvaInputClass };
    IDispatch* d = input.Dispatch();
    ComPtr<EventSink> sink = ComPtr<EventSink>::Adopt(new EventSink(*TolvaInputClass.eventIid));
};

// Index may be left out or passed as missing; given, it places the item.
TEST_F(InputObject, AddItemTakesAnOptionalIndex)
{
    EXPECT_EQ(Method(L"AddItem", { Text(L"Rent") }), S_OK);
    EXPECT_EQ(Method(L"AddItem", { Text(L"Food"), Missing() }), S_OK);
    EXPECT_EQ(Method(L"AddItem", { Text(L"First"), Short(0) }), S_OK);
    EXPECT_EQ(Method(L"AddItem", { Text(L"Last"), Text(L"3") }), S_OK);
    EXPECT_EQ(Method(L"AddItem", {}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(ReadNumber(L"NewIndex"), 3);
    const std::vector<std::u16string> expected = { u"First", u"Rent", u"Food", u"Last" };
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(input.Core().List(int16_t(i)), expected[i]);
}

TEST_F(InputObject, TheListBoxsErrorsReachTheCaller)
{
    Method(L"AddItem", { Text(L"Rent") });
    ExceptionInfo exception;
    EXPECT_EQ(Put(d, L"ListIndex", Short(1)), InvalidPropertyValue);
    EXPECT_EQ(Method(L"RemoveItem", { Short(5) }, &exception), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, InvalidPropertyValue);
    EXPECT_EQ(std::wstring(exception.bstrDescription), L"Invalid property value");
    EXPECT_EQ(Put(d, L"ListIndex", Short(0)), S_OK);
    EXPECT_EQ(ReadText(L"Text"), L"Rent");
}

// What the control leaves in Param goes back to the caller's variable; Value may be left out.
TEST_F(InputObject, PopupWindowCallbackTakesItsArgumentsByReference)
{
    Put(d, L"Text", Text(L"before"));
    Put(d, L"Style", Long(tkInputStyles::tkCombo));
    Method(L"AddItem", { Text(L"Rent") });
    Method(L"AddItem", { Text(L"Food") });
    input.Core().TextInput().SetTag(u"before");
    BSTR param = SysAllocString(L"SELECT");
    CY value { .int64 = 10000 };
    VARIANT byRefParam, byRefValue;
    V_VT(&byRefParam) = VT_BYREF | VT_BSTR;
    V_BSTRREF(&byRefParam) = &param;
    V_VT(&byRefValue) = VT_BYREF | VT_CY;
    V_CYREF(&byRefValue) = &value;
    EXPECT_EQ(Method(L"PopupWindowCallback", { byRefParam, byRefValue }), S_OK);
    EXPECT_EQ(ReadText(L"Text"), L"Food");
    EXPECT_EQ(ReadNumber(L"ListIndex"), 0);
    EXPECT_STREQ(param, L"SELECT");
    SysFreeString(param);

    Put(d, L"Style", Long(tkInputStyles::tkTextBox));
    EXPECT_EQ(Method(L"PopupWindowCallback", { Text(L"CANCEL") }), S_OK);
    EXPECT_EQ(ReadText(L"Text"), L"before");
    EXPECT_EQ(Method(L"PopupWindowCallback", {}), DISP_E_BADPARAMCOUNT);
}

// A value a client assigns arrives in the sink's Change, the text already changed.
TEST_F(InputObject, AssigningTheTextRaisesChange)
{
    Put(d, L"Text", Text(L"new"));
    Put(d, L"Text", Text(L"new"));
    EXPECT_EQ(sink->Ids(), std::vector<DISPID> { ChangeId });
}

TEST_F(InputObject, HostileValuesAreRefusedOrKept)
{
    const std::wstring mega(1 << 20, L'8');
    EXPECT_EQ(Put(d, L"Text", Text(mega.c_str())), S_OK);
    EXPECT_EQ(ReadText(L"Text").size(), mega.size());
    EXPECT_EQ(Put(d, L"SelStart", Long(0x7FFFFFFF)), S_OK);
    EXPECT_EQ(ReadNumber(L"SelStart"), LONG(mega.size()));
    EXPECT_EQ(Put(d, L"SelLength", Long(-1)), InvalidPropertyValue);
    EXPECT_EQ(Put(d, L"MaxLength", Long(0x7FFFFFFF)), S_OK);
    EXPECT_EQ(ReadNumber(L"MaxLength"), 0x7FFFFFFF);
    EXPECT_EQ(Put(d, L"MaxLength", Long(-5)), InvalidPropertyValue);
    const std::wstring format(10000, L'#');
    EXPECT_EQ(Put(d, L"FormatString", Text(format.c_str())), S_OK);
    EXPECT_EQ(ReadText(L"FormatString"), format);
    EXPECT_EQ(Put(d, L"ListIndex", Long(70000)), DISP_E_OVERFLOW);
}

// The calculator's keys through the dispatch interface, formatted by the system.
class InputCalculator : public InputObject {
protected:
    void SetUp() override
    {
        InputObject::SetUp();
        Put(d, L"Style", Long(tkInputStyles::tkCalculator));
    }
    HRESULT Key(const wchar_t* param, double value = 0)
    {
        VARIANT amount;
        V_VT(&amount) = VT_CY;
        VarCyFromR8(value, &V_CY(&amount));
        return Method(L"PopupWindowCallback", { Text(param), amount });
    }
};

// The arithmetic and its errors are the core calculator's (tests/unit/input), hostile format
// strings the formatter's (tests/win32/format); here the keys arrive with their currency amounts
// and the results are formatted by the system.
TEST_F(InputCalculator, KeysComputeAndTheSystemFormatsTheResult)
{
    Key(L"C", 0);
    EXPECT_EQ(ReadText(L"Text"), L"0");
    for (double digit : { 1, 2 })
        Key(L"#", digit);
    Key(L"+");
    Key(L"#", 3);
    EXPECT_EQ(Key(L"="), S_OK);
    EXPECT_EQ(ReadText(L"Text"), L"15");
    Key(L"C", 7);
    Key(L"/");
    Key(L"#", 2);
    Key(L"=");
    EXPECT_EQ(ReadText(L"Text"), L"3.5");

    Put(d, L"FormatString", Text(L"#,##0.00"));
    Key(L"C", 1234);
    Key(L"*");
    Key(L"#", 2);
    Key(L"=");
    EXPECT_EQ(ReadText(L"Text"), L"2,468.00");

    Key(L"C", 5);
    Key(L"/");
    Key(L"#", 0);
    EXPECT_EQ(Key(L"="), HRESULT(0x800A000B));
}

} // namespace
} // namespace tolva::win32::test
