// Every control object answers every name of its dispinterface with the type library's dispatch
// id, and reads every property that takes no index by that id: what a late-bound client does
// first.
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_object.h"
#include "platform/win32/com/type_library.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/every_control.h"
#include "tests/win32/support/type_info_reading.h"
#include <gtest/gtest.h>
#include <map>

namespace tolva::win32::test {
namespace {

struct Declared {
    MEMBERID id;
    INVOKEKIND kind;
    SHORT indexes; // the arguments of a property get: its indexes
};

// The property gets and methods of a dispinterface, by name.
std::map<std::wstring, Declared> Readable(ITypeInfo* info)
{
    std::map<std::wstring, Declared> members;
    ForEachFunction(info, [&](const FUNCDESC& function) {
        if (function.invkind == INVOKE_PROPERTYGET || function.invkind == INVOKE_FUNC)
            members[NameOf(info, function.memid)] = { function.memid, function.invkind, function.cParams };
    });
    return members;
}

// A property get's call: an indexed property is read at index 0 of every index.
HRESULT ReadProperty(IDispatch* object, MEMBERID id, SHORT indexes, OleVariant& value, EXCEPINFO* exception)
{
    if (indexes == 0)
        return Call(object, id, DISPATCH_PROPERTYGET, {}, value, exception);
    if (indexes == 1)
        return Call(object, id, DISPATCH_PROPERTYGET, { Long(0) }, value, exception);
    return Call(object, id, DISPATCH_PROPERTYGET, { Long(0), Long(0) }, value, exception);
}

class MemberNames : public testing::TestWithParam<const ControlClass*> { };

TEST_P(MemberNames, EveryDeclaredNameGivesItsIdAndEveryPropertyReads)
{
    const ControlClass& c = *GetParam();
    ComPtr<IUnknown> object = ControlObject::Create(c);
    auto dispatch = object.As<IDispatch>(IID_IDispatch);
    ComPtr<ITypeInfo> info = TypeLibrary::InfoOf(*c.dispatchIid);
    const auto members = Readable(info.Get());
    ASSERT_FALSE(members.empty());
    for (const auto& [name, declared] : members) {
        SCOPED_TRACE(testing::Message() << ToUtf8(ViewOf(name.c_str())));
        const auto [id, kind, indexes] = declared;
        EXPECT_EQ(IdOf(dispatch.Get(), name.c_str()), id);
        MEMBERID fromTypeInfo = DISPID_UNKNOWN;
        LPOLESTR names[] = { const_cast<LPOLESTR>(name.c_str()) };
        ASSERT_EQ(info->GetIDsOfNames(names, 1, &fromTypeInfo), S_OK);
        EXPECT_EQ(fromTypeInfo, id);
        if (kind != INVOKE_PROPERTYGET)
            continue;
        OleVariant value;
        ExceptionInfo exception;
        const HRESULT hr = ReadProperty(dispatch.Get(), id, indexes, value, &exception);
        // A new control may have no element 0 to read: that is an automation error with its
        // description (the run time's subscript error, or the list's own), not a failure.
        if (indexes > 0 && hr == DISP_E_EXCEPTION) {
            EXPECT_TRUE(FAILED(exception.scode));
            EXPECT_NE(exception.bstrDescription, nullptr);
            continue;
        }
        EXPECT_EQ(hr, S_OK);
        EXPECT_NE(V_VT(&value.Get()), VT_EMPTY);
    }
}

INSTANTIATE_TEST_SUITE_P(AllControls, MemberNames, testing::ValuesIn(ControlClasses()), ClassName);

} // namespace
} // namespace tolva::win32::test
