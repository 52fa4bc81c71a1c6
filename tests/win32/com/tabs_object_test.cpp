// TolvaTabs through IDispatch, its connection point and its persistence interfaces, without a
// container: indexed members, Change and its rCancel by reference, run-time errors for indexes
// outside the arrays, and the keys of the tab arrays in a property bag.
#include "controls/tabs/tolva_tabs.h"
#include "platform/win32/com/bstr.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/hosted_object.h"
#include "tests/win32/support/persistence.h"
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

constexpr DISPID MouseDownId = 6, ChangeId = 9;
constexpr HRESULT SubscriptError = HRESULT(0x800A0009);

using Tabs = HostedObject<TolvaTabs>;

class TabsObject : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(Advise(tabs.Unknown(), *TolvaTabsClass.eventIid, sink.Get()), 0u); }

    HRESULT Method(const wchar_t* name, const VARIANT& argument)
    {
        OleVariant result;
        return Call(d, IdOf(d, name), DISPATCH_METHOD, { argument }, result);
    }
    HRESULT GetAt(const wchar_t* name, LONG index, OleVariant& result, EXCEPINFO* exception = nullptr)
    {
        return Call(d, IdOf(d, name), DISPATCH_PROPERTYGET, { Long(index) }, result, exception);
    }
    std::wstring Caption(LONG index)
    {
        OleVariant caption;
        EXPECT_EQ(GetAt(L"Tabs", index, caption), S_OK);
        return AsText(caption);
    }
    void AddTabs(std::initializer_list<const wchar_t*> captions)
    {
        for (const wchar_t* caption : captions)
            ASSERT_EQ(Method(L"AddItem", Text(caption)), S_OK);
    }
    LONG Read(const wchar_t* name)
    {
        OleVariant value;
        EXPECT_EQ(Get(d, name, value), S_OK);
        return AsLong(value);
    }

    Tabs tabs { TolvaTabsClass };
    IDispatch* d = tabs.Dispatch();
    ComPtr<EventSink> sink = ComPtr<EventSink>::Adopt(new EventSink(*TolvaTabsClass.eventIid));
};

TEST_F(TabsObject, IndexedMembersTakeTheirIndexBeforeTheValue)
{
    AddTabs({ L"One", L"Two", L"Three" });
    EXPECT_EQ(Read(L"TabCount"), 3);
    ASSERT_EQ(PutAt(d, L"Tabs", { Long(1) }, Text(L"&Uno")), S_OK);
    ASSERT_EQ(PutAt(d, L"TabData", { Short(3) }, Long(42)), S_OK);
    ASSERT_EQ(Method(L"RemoveItem", Text(L"2")), S_OK); // as the languages coerce
    EXPECT_EQ(Caption(1), L"&Uno");
    EXPECT_EQ(Caption(2), L"Three");
    OleVariant data;
    ASSERT_EQ(GetAt(L"TabData", 2, data), S_OK);
    EXPECT_EQ(AsLong(data), 42);
    EXPECT_EQ(tabs.Object().ControlSurface().AccessKeys(), u"U");
}

TEST_F(TabsObject, AnIndexOutsideTheArraysIsTheSubscriptError)
{
    AddTabs({ L"One" });
    OleVariant result;
    ExceptionInfo exception;
    ASSERT_EQ(GetAt(L"Tabs", 2, result, &exception), DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, SubscriptError);
    EXPECT_EQ(FromBstr(exception.bstrDescription), u"Subscript out of range");
    // Without an EXCEPINFO the error comes back as the HRESULT itself.
    for (HRESULT hr : { PutAt(d, L"Tabs", { Long(-1) }, Text(L"x")), PutAt(d, L"TabData", { Long(9) }, Long(1)),
             GetAt(L"TabData", 70000, result), Method(L"RemoveItem", Long(-5)) })
        EXPECT_EQ(hr, SubscriptError);
    EXPECT_EQ(Read(L"TabCount"), 1);
}

TEST_F(TabsObject, ChangeCarriesRCancelByReferenceAndASinkThatSetsItCancels)
{
    AddTabs({ L"One", L"Two" });
    ASSERT_EQ(Put(d, L"SelectedItem", Long(1)), S_OK);
    std::vector<LONG> seen;
    sink->OnEvent([&](DISPID id, const std::vector<VARIANT*>& arguments) {
        if (id != ChangeId)
            return;
        seen.push_back(tabs.Core().SelectedItem());
        *V_BOOLREF(arguments[0]) = 1; // any value but 0 is true
    });
    ASSERT_EQ(Put(d, L"SelectedItem", Long(2)), S_OK);
    EXPECT_EQ(Read(L"SelectedItem"), 1);
    EXPECT_EQ(seen, (std::vector<LONG> { 2 }));
    ASSERT_EQ(sink->Events().size(), 2u);
    EXPECT_EQ(sink->Events()[1].types, (std::vector<VARTYPE> { VT_BYREF | VT_BOOL }));

    sink->OnEvent(nullptr);
    tabs.Input().OnMouseDown(1, 0, 1800, 60);
    EXPECT_EQ(Read(L"SelectedItem"), 2);
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { ChangeId, ChangeId, ChangeId, MouseDownId }));
}

// Persistence.

const std::vector<std::wstring> KeyOrder = { L"BackColor", L"ForeColor", L"Enabled", L"TabsCount", L"Tabs1", L"Tabs2",
    L"BorderColor", L"TabCount", L"SelectedItem", L"TabDataCount", L"TabData1", L"TabData2", L"BackColorInactive",
    L"BackColorBehind", L"TabWidth", L"Font" };

// The values coming back are the round trip's to show (round_trip_test.cpp); here, the keys.
TEST_F(TabsObject, TheTabArraysAreSavedAsCountedKeysInTheirPlaces)
{
    AddTabs({ L"&General", L"" });
    PutAt(d, L"TabData", { Long(2) }, Long(-7));
    Put(d, L"SelectedItem", Long(2));
    Put(d, L"BorderColor", Long(0x102030));
    Put(d, L"ForeColor", Long(0x0000FF));
    Put(d, L"TabWidth", Long(1200));
    auto bag = SavedBag(tabs.Unknown());
    ASSERT_TRUE(bag);
    std::vector<std::wstring> written = KeyOrder;
    std::erase_if(written, [](const std::wstring& key) {
        return key == L"BackColor" || key == L"Enabled" || key == L"BackColorInactive" || key == L"BackColorBehind"
            || key == L"Font";
    });
    EXPECT_EQ(bag->Writes(), written);
    EXPECT_EQ(V_VT(bag->Find(L"Tabs2")), VT_BSTR) << "an empty caption is saved";
    EXPECT_EQ(V_VT(bag->Find(L"TabData1")), VT_I4) << "so is a zero";

    Tabs loaded { TolvaTabsClass };
    ASSERT_EQ(LoadBag(loaded.Unknown(), bag.Get()), S_OK);
    EXPECT_EQ(bag->Reads(), KeyOrder);
    EXPECT_EQ(loaded.Core().Tabs(1), u"&General");
    EXPECT_EQ(loaded.Core().TabData(2), -7);
}

} // namespace
} // namespace tolva::win32::test
