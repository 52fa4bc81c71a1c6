// TolvaCommand through IDispatch as VB and the script engines call it.
#include "platform/win32/com/bstr.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

class CommandDispatch : public testing::Test {
protected:
    CommandObject command;
    IDispatch* d = command.Dispatch();
    OleVariant result;
};

TEST_F(CommandDispatch, EveryPropertyRoundTripsByName)
{
    EXPECT_EQ(Put(d, L"Caption", Text(L"&Save")), S_OK);
    EXPECT_EQ(Put(d, L"MenuName", Text(L"mnuFile")), S_OK);
    EXPECT_EQ(Put(d, L"Style", Long(1)), S_OK);
    EXPECT_EQ(Put(d, L"Alignment", Long(1)), S_OK);
    EXPECT_EQ(Put(d, L"BackColor", Long(0x112233)), S_OK);
    EXPECT_EQ(Put(d, L"BackColorActive", Long(0x223344)), S_OK);
    EXPECT_EQ(Put(d, L"BackColorPushed", Long(0x334455)), S_OK);
    EXPECT_EQ(Put(d, L"ForeColor", Long(0x445566)), S_OK);
    EXPECT_EQ(Put(d, L"ForeColorDisabled", Long(0x556677)), S_OK);
    EXPECT_EQ(Put(d, L"Enabled", Bool(false)), S_OK);

    TolvaCommand& c = command.Control();
    EXPECT_EQ(c.Caption(), u"&Save");
    EXPECT_EQ(c.MenuName(), u"mnuFile");
    EXPECT_EQ(c.Style(), 1);
    EXPECT_EQ(c.Alignment(), 1);
    EXPECT_EQ(c.BackColor(), 0x112233u);
    EXPECT_EQ(c.BackColorActive(), 0x223344u);
    EXPECT_EQ(c.BackColorPushed(), 0x334455u);
    EXPECT_EQ(c.ForeColor(), 0x445566u);
    EXPECT_EQ(c.ForeColorDisabled(), 0x556677u);
    EXPECT_FALSE(c.Enabled());

    // Read back by dispatch id, as early-bound VB code does.
    const std::pair<DISPID, LONG> numbers[]
        = { { 0x68030000, 1 }, { 0x6803000B, 1 }, { 0x68030009, 0x112233 }, { 0x6803000A, 0x223344 },
              { 0x68030002, 0x334455 }, { 0x68030007, 0x445566 }, { 0x68030008, 0x556677 }, { 0x68030006, 0 } };
    for (auto [id, expected] : numbers) {
        ASSERT_EQ(Call(d, id, DISPATCH_PROPERTYGET, {}, result), S_OK) << id;
        EXPECT_EQ(AsLong(result), expected) << id;
    }
    Call(d, 0x68030001, DISPATCH_PROPERTYGET, {}, result);
    EXPECT_EQ(AsText(result), L"&Save");
    Call(d, 0x68030003, DISPATCH_PROPERTYGET, {}, result);
    EXPECT_EQ(AsText(result), L"mnuFile");
    Call(d, 0x68030006, DISPATCH_PROPERTYGET, {}, result);
    EXPECT_EQ(V_VT(&result.Get()), VT_BOOL);
}

TEST_F(CommandDispatch, UnknownNamesAndIdsAreRefused)
{
    DISPID id = 0;
    LPOLESTR names[] = { const_cast<LPOLESTR>(L"Captions") };
    EXPECT_EQ(d->GetIDsOfNames(IID_NULL, names, 1, 0, &id), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(id, DISPID_UNKNOWN);
    EXPECT_EQ(Call(d, 0x68030004, DISPATCH_PROPERTYGET, {}, result), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(Call(d, 12345, DISPATCH_METHOD, {}, result), DISP_E_MEMBERNOTFOUND);
}

TEST_F(CommandDispatch, ColoursArriveInEveryClientsForm)
{
    // VB: &H8000000F is a negative Long.
    EXPECT_EQ(Put(d, L"BackColor", Long(LONG(0x8000000F))), S_OK);
    EXPECT_EQ(command.Control().BackColor(), 0x8000000Fu);
    // JScript: 0x80000012 is the double 2147483666.
    EXPECT_EQ(Put(d, L"ForeColor", Double(2147483666.0)), S_OK);
    EXPECT_EQ(command.Control().ForeColor(), 0x80000012u);
    // A number written as text, and an Integer.
    EXPECT_EQ(Put(d, L"BackColorActive", Text(L"255")), S_OK);
    EXPECT_EQ(command.Control().BackColorActive(), 255u);
    EXPECT_EQ(Put(d, L"BackColorPushed", Short(128)), S_OK);
    EXPECT_EQ(command.Control().BackColorPushed(), 128u);
    // Colours go back as the Long VB would hold.
    Get(d, L"BackColor", result);
    EXPECT_EQ(V_VT(&result.Get()), VT_I4);
    EXPECT_EQ(V_I4(&result.Get()), LONG(0x8000000F));
}

TEST_F(CommandDispatch, NumbersAndBooleansAreCoercedAsTheLanguagesDo)
{
    EXPECT_EQ(Put(d, L"Style", Text(L"1")), S_OK);
    EXPECT_EQ(command.Control().Style(), 1);
    EXPECT_EQ(Put(d, L"Alignment", Double(1.0)), S_OK);
    EXPECT_EQ(command.Control().Alignment(), 1);
    EXPECT_EQ(Put(d, L"Style", Double(2.5)), S_OK); // banker's rounding, as CLng
    EXPECT_EQ(command.Control().Style(), 2);
    EXPECT_EQ(Put(d, L"Enabled", Long(0)), S_OK);
    EXPECT_FALSE(command.Control().Enabled());
    EXPECT_EQ(Put(d, L"Enabled", Long(-1)), S_OK);
    EXPECT_TRUE(command.Control().Enabled());
    EXPECT_EQ(Put(d, L"Enabled", Text(L"False")), S_OK);
    EXPECT_FALSE(command.Control().Enabled());
    EXPECT_EQ(Put(d, L"Caption", Long(42)), S_OK);
    EXPECT_EQ(command.Control().Caption(), u"42");
    EXPECT_EQ(Put(d, L"Caption", Bool(true)), S_OK);
    EXPECT_EQ(command.Control().Caption(), u"True");
}

TEST_F(CommandDispatch, ValuesThatDoNotConvertAreRefusedAndChangeNothing)
{
    Put(d, L"Style", Long(1));
    UINT argumentError = 99;
    TextArgument menu(L"menu");
    VARIANT text = menu;
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS params = { &text, &named, 1, 1 };
    EXPECT_EQ(d->Invoke(0x68030000, IID_NULL, 0, DISPATCH_PROPERTYPUT, &params, nullptr, nullptr, &argumentError),
        DISP_E_TYPEMISMATCH);
    EXPECT_EQ(argumentError, 0u);
    EXPECT_EQ(command.Control().Style(), 1);

    EXPECT_EQ(Put(d, L"Style", Double(1e20)), DISP_E_OVERFLOW);
    EXPECT_EQ(Put(d, L"Enabled", Text(L"maybe")), DISP_E_TYPEMISMATCH);
    VARIANT null;
    V_VT(&null) = VT_NULL;
    EXPECT_EQ(Put(d, L"Caption", null), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(command.Control().Style(), 1);
    EXPECT_TRUE(command.Control().Enabled());
}

TEST_F(CommandDispatch, WrongArgumentCountsAreRefused)
{
    EXPECT_EQ(Call(d, IdOf(d, L"Caption"), DISPATCH_PROPERTYGET, { Long(1) }, result), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(Call(d, IdOf(d, L"Refresh"), DISPATCH_METHOD, { Long(1) }, result), DISP_E_BADPARAMCOUNT);
    // An assignment without the value, and one whose value is not the named argument.
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS none = { nullptr, &named, 0, 0 };
    EXPECT_EQ(d->Invoke(IdOf(d, L"Caption"), IID_NULL, 0, DISPATCH_PROPERTYPUT, &none, nullptr, nullptr, nullptr),
        DISP_E_PARAMNOTOPTIONAL);
    VARIANT value = Long(1);
    DISPID other = 7;
    DISPPARAMS wrongName = { &value, &other, 1, 1 };
    EXPECT_EQ(d->Invoke(IdOf(d, L"Style"), IID_NULL, 0, DISPATCH_PROPERTYPUT, &wrongName, nullptr, nullptr, nullptr),
        DISP_E_NONAMEDARGS);
    // A client that does not name the value still passes it first.
    EXPECT_EQ(Call(d, IdOf(d, L"Style"), DISPATCH_PROPERTYPUT, { Long(1) }, result), S_OK);
    EXPECT_EQ(command.Control().Style(), 1);
}

TEST_F(CommandDispatch, PropertyCalledAsMethodIsRead)
{
    // JScript reads a bare property with DISPATCH_METHOD alone.
    Put(d, L"Caption", Text(L"OK"));
    ASSERT_EQ(Call(d, IdOf(d, L"Caption"), DISPATCH_METHOD, {}, result), S_OK);
    EXPECT_EQ(AsText(result), L"OK");
    // VBScript calls a method with DISPATCH_METHOD | DISPATCH_PROPERTYGET.
    EXPECT_EQ(Call(d, IdOf(d, L"Refresh"), DISPATCH_METHOD | DISPATCH_PROPERTYGET, {}, result), S_OK);
}

TEST_F(CommandDispatch, MethodsAndValuePropertiesCannotBeAssignedWrongly)
{
    EXPECT_EQ(Put(d, L"Refresh", Long(1)), DISP_E_MEMBERNOTFOUND);
    // Set ctl.Caption = obj
    CommandObject other;
    EXPECT_EQ(Put(d, L"Caption", Object(other.Dispatch()), DISPATCH_PROPERTYPUTREF), DISP_E_MEMBERNOTFOUND);
}

TEST_F(CommandDispatch, ResultAndErrorPointersMayBeNull)
{
    DISPPARAMS none = {};
    EXPECT_EQ(
        d->Invoke(IdOf(d, L"Caption"), IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(d->Invoke(IdOf(d, L"Caption"), IID_IDispatch, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr),
        DISP_E_UNKNOWNINTERFACE);
}

TEST_F(CommandDispatch, TypeInfoIsTheDispinterface)
{
    UINT count = 0;
    EXPECT_EQ(d->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1u);
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(d->GetTypeInfo(0, 0, info.Put()), S_OK);
    TYPEATTR* attributes = nullptr;
    info->GetTypeAttr(&attributes);
    EXPECT_EQ(attributes->guid, *TolvaCommandClass.dispatchIid);
    EXPECT_EQ(attributes->typekind, TKIND_DISPATCH);
    info->ReleaseTypeAttr(attributes);
    EXPECT_EQ(d->GetTypeInfo(1, 0, info.Put()), DISP_E_BADINDEX);
}

} // namespace
} // namespace tolva::win32::test
