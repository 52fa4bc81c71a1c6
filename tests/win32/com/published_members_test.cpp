// What hosts compile and script against, class by class: the published dispatch ids, found by
// name in any case, what every property of a new object without a container reads, with its
// automation type, and that every member of every class is found by its name and answers.
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_object.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/every_control.h"
#include <algorithm>
#include <cwctype>
#include <gtest/gtest.h>
#include <vector>

namespace tolva::win32 {
extern const ControlClass TolvaInputClass;
}

namespace tolva::win32::test {
namespace {

using Ids = std::vector<std::pair<const wchar_t*, DISPID>>;

const std::pair<const ControlClass*, Ids> PublishedIds[] = {
    { &TolvaCommandClass,
        {
            { L"Style", 0x68030000 },
            { L"Caption", 0x68030001 },
            { L"BackColorPushed", 0x68030002 },
            { L"MenuName", 0x68030003 },
            { L"Font", 0x68030005 },
            { L"Enabled", 0x68030006 },
            { L"ForeColor", 0x68030007 },
            { L"ForeColorDisabled", 0x68030008 },
            { L"BackColor", 0x68030009 },
            { L"BackColorActive", 0x6803000A },
            { L"Alignment", 0x6803000B },
            { L"Refresh", 0x60030010 },
            { L"AboutBox", -552 },
        } },
    { &TolvaLabelClass,
        {
            { L"BackColorPushed", 0x68030000 },
            { L"BackColorActive", 0x68030001 },
            { L"ForeColorPushed", 0x68030002 },
            { L"ArrowPosition", 0x68030003 },
            { L"ArrowIcon", 0x68030004 },
            { L"ForeColorActive", 0x68030005 },
            { L"Caption", 0x68030006 },
            { L"MenuName", 0x68030007 },
            { L"Kerning", 0x68030008 },
            { L"BorderStyle", 0x68030009 },
            { L"Font", 0x6803000A },
            { L"Enabled", 0x6803000B },
            { L"ForeColor", 0x6803000C },
            { L"ForeColorDisabled", 0x6803000D },
            { L"BackColor", 0x6803000E },
            { L"Alignment", 0x6803000F },
            { L"Refresh", 0x60030014 },
            { L"AboutBox", -552 },
        } },
    { &TolvaScrollClass,
        {
            { L"Enabled", 0x68030000 },
            { L"BackColor", 0x68030001 },
            { L"BackColorActive", 0x68030002 },
            { L"BackColorPushed", 0x68030003 },
            { L"ForeColor", 0x68030004 },
            { L"ForeColorActive", 0x68030005 },
            { L"ForeColorPushed", 0x68030006 },
            { L"Value", 0x68030007 },
            { L"Min", 0x68030008 },
            { L"Max", 0x68030009 },
            { L"LargeChange", 0x6803000A },
            { L"SmallChange", 0x6803000B },
            { L"Refresh", 0x60030010 },
            { L"AboutBox", -552 },
        } },
    { &TolvaTabsClass,
        {
            { L"BackColor", 0x68030000 },
            { L"ForeColor", 0x68030001 },
            { L"Enabled", 0x68030002 },
            { L"Font", 0x68030003 },
            { L"BorderColor", 0x68030004 },
            { L"TabCount", 0x68030005 },
            { L"Tabs", 0x68030006 },
            { L"SelectedItem", 0x68030007 },
            { L"TabData", 0x68030008 },
            { L"BackColorInactive", 0x68030009 },
            { L"BackColorBehind", 0x6803000A },
            { L"TabWidth", 0x6803000B },
            { L"Clear", 0x60030010 },
            { L"Refresh", 0x60030011 },
            { L"AddItem", 0x60030012 },
            { L"RemoveItem", 0x60030013 },
            { L"AboutBox", -552 },
        } },
};

// What a property of a new object reads: its automation type, and its number or its text.
struct Default {
    const wchar_t* name;
    VARTYPE type;
    LONG number = 0;
    const wchar_t* text = nullptr;
};

constexpr LONG True = VARIANT_TRUE;

const std::pair<const ControlClass*, std::vector<Default>> Defaults[] = {
    { &TolvaCommandClass,
        { { L"Caption", VT_BSTR, 0, L"TolvaCommand1" }, { L"BackColor", VT_I4, 0xCEDBDE },
            { L"ForeColor", VT_I4, LONG(0x80000012) }, { L"Enabled", VT_BOOL, True }, { L"Style", VT_I4, 0 },
            { L"MenuName", VT_BSTR, 0, L"" } } },
    // Light on dark, named after its class.
    { &TolvaLabelClass,
        { { L"Caption", VT_BSTR, 0, L"TolvaLabel1" }, { L"BackColor", VT_I4, 0x000000 },
            { L"ForeColor", VT_I4, 0xFFFFFF }, { L"ForeColorActive", VT_I4, 0x9CDFF7 },
            { L"ForeColorDisabled", VT_I4, 0x808080 }, { L"ForeColorPushed", VT_I4, 0xFFFFFF },
            { L"BackColorActive", VT_I4, 0x000000 }, { L"BackColorPushed", VT_I4, 0x000000 },
            { L"Kerning", VT_BOOL, 0 }, { L"Enabled", VT_BOOL, True }, { L"BorderStyle", VT_I4, 0 },
            { L"Alignment", VT_I4, 0 }, { L"ArrowIcon", VT_I4, 0 }, { L"ArrowPosition", VT_I4, 0 },
            { L"MenuName", VT_BSTR, 0, L"" } } },
    // The arrows' pushed colour is their design colour until set or loaded.
    { &TolvaScrollClass,
        { { L"Value", VT_I4, 1 }, { L"Min", VT_I4, 1 }, { L"Max", VT_I4, 100 }, { L"LargeChange", VT_I4, 1 },
            { L"SmallChange", VT_I4, 1 }, { L"BackColor", VT_I4, 0xCEDBDE }, { L"BackColorActive", VT_I4, 0xDEE7EF },
            { L"BackColorPushed", VT_I4, 0xDEE7EF }, { L"ForeColor", VT_I4, 0x000000 },
            { L"ForeColorActive", VT_I4, 0xFFFFFF }, { L"Enabled", VT_BOOL, True } } },
    // An empty text box.
    { &TolvaInputClass,
        { { L"Style", VT_I4, 0 }, { L"ListCount", VT_I2, 0 }, { L"ListIndex", VT_I2, -1 },
            { L"BackColor", VT_I4, LONG(0x80000005) }, { L"ddBackColor", VT_I4, 0xCEDBDE },
            { L"FormatString", VT_BSTR, 0, L"" }, { L"Sorted", VT_BOOL, 0 } } },
};

ComPtr<IDispatch> NewObject(const ControlClass& controlClass)
{
    return ControlObject::Create(controlClass).As<IDispatch>(IID_IDispatch);
}

std::wstring InCase(std::wstring text, wint_t (*change)(wint_t))
{
    std::transform(text.begin(), text.end(), text.begin(), [change](wchar_t c) { return wchar_t(change(c)); });
    return text;
}

TEST(PublishedMembers, NamesHaveTheirPublishedIdsInAnyCase)
{
    for (const auto& [controlClass, ids] : PublishedIds) {
        ComPtr<IDispatch> d = NewObject(*controlClass);
        for (auto [name, id] : ids) {
            SCOPED_TRACE(ToUtf8(FromWide(controlClass->name)) + "." + ToUtf8(ViewOf(name)));
            EXPECT_EQ(IdOf(d.Get(), name), id);
            EXPECT_EQ(IdOf(d.Get(), InCase(name, towlower).c_str()), id);
            EXPECT_EQ(IdOf(d.Get(), InCase(name, towupper).c_str()), id);
        }
    }
}

TEST(PublishedMembers, ANewObjectWithoutAContainerReadsTheDefaults)
{
    for (const auto& [controlClass, defaults] : Defaults) {
        ComPtr<IDispatch> d = NewObject(*controlClass);
        for (const Default& expected : defaults) {
            SCOPED_TRACE(ToUtf8(FromWide(controlClass->name)) + "." + ToUtf8(ViewOf(expected.name)));
            OleVariant value;
            ASSERT_EQ(Get(d.Get(), expected.name, value), S_OK);
            EXPECT_EQ(value.Type(), expected.type);
            if (expected.text)
                EXPECT_EQ(AsText(value), expected.text);
            else
                EXPECT_EQ(AsLong(value), expected.number);
        }
    }
}

// A member called as a client first tries it: a method without arguments, a property read, an
// indexed one at index 0 of every index.
HRESULT Try(IDispatch* d, const DispatchMember& member, OleVariant& result, EXCEPINFO* exception)
{
    const WORD flags = member.isMethod ? DISPATCH_METHOD : DISPATCH_PROPERTYGET;
    switch (member.parameters.size()) {
    case 0:
        return Call(d, member.id, flags, {}, result, exception);
    case 1:
        return Call(d, member.id, flags, { Long(0) }, result, exception);
    default:
        return Call(d, member.id, flags, { Long(0), Long(0) }, result, exception);
    }
}

// Every member of a new object without a container: its name gives its id; a method without
// arguments answers (Refresh and AboutBox show nothing, so nothing modal blocks a script); a
// property reads a value, or, indexed where a new control has no element 0, raises an automation
// error with its description (the run time's subscript error, or the list's own).
class EveryMember : public testing::TestWithParam<const ControlClass*> { };

TEST_P(EveryMember, IsFoundByNameAndAnswersOnANewObject)
{
    ComPtr<IDispatch> d = NewObject(*GetParam());
    for (const DispatchMember& member : GetParam()->members) {
        SCOPED_TRACE(ToUtf8(FromWide(member.name)));
        EXPECT_EQ(IdOf(d.Get(), member.name), member.id);
        if (member.isMethod && !member.parameters.empty())
            continue;
        OleVariant result;
        ExceptionInfo exception;
        const HRESULT hr = Try(d.Get(), member, result, &exception);
        if (!member.parameters.empty() && hr == DISP_E_EXCEPTION) {
            EXPECT_TRUE(FAILED(exception.scode));
            EXPECT_NE(exception.bstrDescription, nullptr);
            continue;
        }
        EXPECT_EQ(hr, S_OK);
        if (!member.isMethod) {
            EXPECT_NE(result.Type(), VT_EMPTY);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryControl, EveryMember, testing::ValuesIn(ControlClasses()), ClassName);

} // namespace
} // namespace tolva::win32::test
