// The generic parts of the binding tables on a control made up for the test: index arguments,
// methods with arguments and results, read-only properties and errors the control raises.
#include "core/automation_error.h"
#include "platform/win32/com/binder.h"
#include "platform/win32/com/bound_dispatch.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <stdexcept>

namespace tolva::win32::test {
namespace {

class LedgerEvents { };

class NoForwarder final : public LedgerEvents {
public:
    explicit NoForwarder(EventRaiser&) { }
};

// A control as the binder sees one: lifecycle calls and published members.
class Ledger {
public:
    Ledger(Surface&, ControlSite&) { }
    void SetEventListener(LedgerEvents*) { }
    void InitProperties() { }
    void ReadProperties(PropertyBag&) { }
    void WriteProperties(PropertyBag&) const { }

    String RowText(int32_t row, int16_t column) const
    {
        auto found = m_cells.find({ row, column });
        if (found == m_cells.end())
            throw AutomationError(int32_t(0x800455F1), u"TolvaList", u"Subscript Out Of Range");
        return found->second;
    }
    void SetRowText(int32_t row, int16_t column, StringView text) { m_cells[{ row, column }] = String(text); }
    int32_t AddRow(StringView text, double amount)
    {
        m_cells[{ ++m_rows, 1 }] = String(text);
        m_total += amount;
        return m_rows;
    }
    int32_t Rows() const { return m_rows; }
    double Total() const { return m_total; }
    void Break() { throw std::logic_error("a bug"); }

private:
    std::map<std::pair<int32_t, int16_t>, String> m_cells;
    int32_t m_rows = 0;
    double m_total = 0;
};

const GUID LedgerGuid = { 0x5d3c2b1a, 0x1111, 0x4222, { 0x83, 0x33, 0x44, 0x44, 0x55, 0x55, 0x66, 0x66 } };

using B = Binder<Ledger>;
const DispatchMember LedgerMembers[] = {
    B::Property<&Ledger::RowText, &Ledger::SetRowText>(1, L"RowText"),
    B::Method<&Ledger::AddRow>(2, L"AddRow"),
    B::Property<&Ledger::Rows>(3, L"Rows"),
    B::Property<&Ledger::Total>(4, L"Total"),
    B::Method<&Ledger::Break>(5, L"Break"),
};

const ControlClass LedgerClass = {
    L"Ledger",
    &LedgerGuid,
    &LedgerGuid,
    &LedgerGuid,
    LedgerMembers,
    &CreateHostedControl<Ledger, NoForwarder>,
};

class Binding : public testing::Test {
protected:
    ComPtr<IUnknown> object = ControlObject::Create(LedgerClass);
    ComPtr<IDispatch> d = object.As<IDispatch>(IID_IDispatch);
    OleVariant result;
};

TEST_F(Binding, MethodsTakeArgumentsInOrderAndReturnTheirResult)
{
    ASSERT_EQ(Call(d.Get(), 2, DISPATCH_METHOD, { Text(L"Rent"), Double(12.5) }, result), S_OK);
    EXPECT_EQ(AsLong(result), 1);
    ASSERT_EQ(Call(d.Get(), 2, DISPATCH_METHOD, { Text(L"Food"), Text(L"7.5") }, result), S_OK);
    EXPECT_EQ(AsLong(result), 2);
    Get(d.Get(), L"Total", result);
    EXPECT_EQ(V_R8(&result.Get()), 20.0);
}

TEST_F(Binding, IndexedPropertiesTakeTheirIndexesBeforeTheValue)
{
    VARIANT arguments[3] = { Text(L"Tax"), Short(2), Long(7) }; // last argument first
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS assign = { arguments, &named, 3, 1 };
    ASSERT_EQ(d->Invoke(1, IID_NULL, 0, DISPATCH_PROPERTYPUT, &assign, nullptr, nullptr, nullptr), S_OK);
    VariantClear(&arguments[0]);
    ASSERT_EQ(Call(d.Get(), 1, DISPATCH_PROPERTYGET, { Long(7), Long(2) }, result), S_OK);
    EXPECT_EQ(AsText(result), L"Tax");
}

TEST_F(Binding, MissingAndWrongArgumentsAreNamed)
{
    UINT argumentError = 99;
    EXPECT_EQ(Call(d.Get(), 2, DISPATCH_METHOD, { Text(L"Rent"), Missing() }, result, nullptr, &argumentError),
        DISP_E_PARAMNOTOPTIONAL);
    EXPECT_EQ(argumentError, 0u); // the last argument is DISPPARAMS' first
    EXPECT_EQ(Call(d.Get(), 2, DISPATCH_METHOD, { Missing(), Double(1) }, result, nullptr, &argumentError),
        DISP_E_PARAMNOTOPTIONAL);
    EXPECT_EQ(argumentError, 1u);
    EXPECT_EQ(Call(d.Get(), 2, DISPATCH_METHOD, { Text(L"Rent"), Text(L"much") }, result, nullptr, &argumentError),
        DISP_E_TYPEMISMATCH);
    EXPECT_EQ(argumentError, 0u);
    EXPECT_EQ(Call(d.Get(), 1, DISPATCH_PROPERTYGET, { Long(1), Long(100000) }, result, nullptr, &argumentError),
        DISP_E_OVERFLOW);
    EXPECT_EQ(argumentError, 0u);
    EXPECT_EQ(Call(d.Get(), 2, DISPATCH_METHOD, { Text(L"Rent") }, result), DISP_E_BADPARAMCOUNT);
    Get(d.Get(), L"Rows", result);
    EXPECT_EQ(AsLong(result), 0);
}

TEST_F(Binding, AnAutomationErrorBecomesAnExceptionAndAnErrorObject)
{
    ExceptionInfo exception;
    EXPECT_EQ(Call(d.Get(), 1, DISPATCH_PROPERTYGET, { Long(3), Long(1) }, result, &exception), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, HRESULT(0x800455F1));
    EXPECT_EQ(FromBstr(exception.bstrSource), u"TolvaList");
    EXPECT_EQ(FromBstr(exception.bstrDescription), u"Subscript Out Of Range");

    ComPtr<IErrorInfo> info;
    ASSERT_EQ(GetErrorInfo(0, info.Put()), S_OK);
    Bstr description;
    info->GetDescription(description.Put());
    EXPECT_EQ(FromBstr(description.Get()), u"Subscript Out Of Range");
    GUID guid = {};
    info->GetGUID(&guid);
    EXPECT_EQ(guid, LedgerGuid);

    // Without an EXCEPINFO the code itself comes back.
    EXPECT_EQ(Call(d.Get(), 1, DISPATCH_PROPERTYGET, { Long(3), Long(1) }, result), HRESULT(0x800455F1));
}

TEST_F(Binding, ASuccessfulCallLeavesNoEarlierErrorBehind)
{
    Call(d.Get(), 1, DISPATCH_PROPERTYGET, { Long(3), Long(1) }, result);
    EXPECT_EQ(Call(d.Get(), 3, DISPATCH_PROPERTYGET, {}, result), S_OK);
    ComPtr<IErrorInfo> info;
    EXPECT_EQ(GetErrorInfo(0, info.Put()), S_FALSE);
}

TEST_F(Binding, AnyOtherFailureInsideTheControlStopsAtTheBoundary)
{
    EXPECT_EQ(Call(d.Get(), 5, DISPATCH_METHOD, {}, result), E_UNEXPECTED);
    EXPECT_EQ(Call(d.Get(), 3, DISPATCH_PROPERTYGET, {}, result), S_OK);
}

// Any C++ object binds, not only a control: a tally served by a BoundDispatch, with a parameter
// that may be left out, one taken as the caller passed it, and an object handed out.
extern const DispatchMember TallyMembers[4];

class Tally final : public BoundDispatch {
public:
    Tally()
        : BoundDispatch(this, TallyMembers)
    { }
    int32_t Add(int32_t amount, std::optional<int32_t> times) { return m_total += amount * times.value_or(1); }
    int32_t Total() const { return m_total; }
    void SetTotal(int32_t total) { m_total = total; }
    int16_t KindOf(const VARIANT& value) const { return int16_t(V_VT(&value)); }
    IDispatch* Self() { return this; }

private:
    int32_t m_total = 0;
};

using T = Binder<Tally>;
const DispatchMember TallyMembers[] = {
    T::Method<&Tally::Add>(1, L"Add"),
    T::Property<&Tally::Total, &Tally::SetTotal>(2, L"Total"),
    T::Method<&Tally::KindOf>(3, L"KindOf"),
    T::Property<&Tally::Self>(4, L"Self"),
};

TEST(BindingAnyObject, CallsItsMembersWithOptionalBorrowedAndObjectValues)
{
    auto tally = ComPtr<Tally>::Adopt(new Tally());
    IDispatch* d = tally.Get();
    OleVariant result;
    EXPECT_EQ(IdOf(d, L"add"), 1);
    EXPECT_EQ(Call(d, 1, DISPATCH_METHOD, { Long(5) }, result), S_OK);
    EXPECT_EQ(AsLong(result), 5);
    EXPECT_EQ(Call(d, 1, DISPATCH_METHOD, { Long(2), Long(3) }, result), S_OK);
    EXPECT_EQ(Call(d, 1, DISPATCH_METHOD, { Long(2), Missing() }, result), S_OK);
    EXPECT_EQ(AsLong(result), 13);
    EXPECT_EQ(Call(d, 1, DISPATCH_METHOD, {}, result), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(Call(d, 1, DISPATCH_METHOD, { Missing(), Long(1) }, result), DISP_E_PARAMNOTOPTIONAL);
    ASSERT_EQ(Put(d, L"Total", Long(0)), S_OK);
    Get(d, L"Total", result);
    EXPECT_EQ(AsLong(result), 0);

    VARIANT number = Long(7);
    VARIANT reference;
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &number;
    ASSERT_EQ(Call(d, 3, DISPATCH_METHOD, { reference }, result), S_OK);
    EXPECT_EQ(AsLong(result), VT_I4);
    ASSERT_EQ(Get(d, L"Self", result), S_OK);
    ASSERT_EQ(result.Type(), VT_DISPATCH);
    EXPECT_EQ(V_DISPATCH(&result.Get()), d);
    EXPECT_EQ(Put(d, L"Self", Object(d)), DISP_E_MEMBERNOTFOUND);
}

} // namespace
} // namespace tolva::win32::test
