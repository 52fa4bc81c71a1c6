// TolvaScroll saved and loaded through IPersistPropertyBag and IPersistStreamInit: one key order
// for both, colours taken from the down arrow, numbers loaded without any check or event. That
// every value comes back is the round trip's to show (round_trip_test.cpp).
#include "controls/scroll/tolva_scroll.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/hosted_object.h"
#include "tests/win32/support/recording_property_bag.h"
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

const std::vector<std::wstring> KeyOrder = { L"Enabled", L"BackColor", L"BackColorActive", L"BackColorPushed",
    L"ForeColor", L"ForeColorActive", L"ForeColorPushed", L"Value", L"Min", L"Max", L"LargeChange", L"SmallChange" };

using Scroll = HostedObject<TolvaScroll>;

class ScrollPersistence : public testing::Test {
protected:
    static ComPtr<IPersistPropertyBag> Persist(const Scroll& s)
    {
        return s.As<IPersistPropertyBag>(IID_IPersistPropertyBag);
    }
    static ComPtr<RecordingPropertyBag> NewBag()
    {
        return ComPtr<RecordingPropertyBag>::Adopt(new RecordingPropertyBag);
    }

    void SetEverything()
    {
        Put(d, L"Enabled", Bool(false));
        Put(d, L"BackColor", Long(0x101010));
        Put(d, L"BackColorActive", Long(0x202020));
        Put(d, L"BackColorPushed", Long(0x303030));
        Put(d, L"ForeColor", Long(0x404040));
        Put(d, L"ForeColorActive", Long(0x505050));
        Put(d, L"ForeColorPushed", Long(0x606060));
        Put(d, L"Max", Long(500));
        Put(d, L"Min", Long(-20));
        Put(d, L"Value", Long(250));
        Put(d, L"LargeChange", Long(50));
        Put(d, L"SmallChange", Long(5));
    }

    Scroll scroll { TolvaScrollClass };
    IDispatch* d = scroll.Dispatch();
};

TEST_F(ScrollPersistence, LoadAndSaveUseOneKeyOrder)
{
    auto empty = NewBag();
    ASSERT_EQ(Persist(scroll)->Load(empty.Get(), nullptr), S_OK);
    EXPECT_EQ(empty->Reads(), KeyOrder);

    SetEverything();
    auto bag = NewBag();
    ASSERT_EQ(Persist(scroll)->Save(bag.Get(), TRUE, TRUE), S_OK);
    EXPECT_EQ(bag->Writes(), KeyOrder);
    EXPECT_EQ(V_VT(bag->Find(L"Enabled")), VT_BOOL);
    EXPECT_EQ(V_VT(bag->Find(L"BackColor")), VT_I4);
    EXPECT_EQ(V_VT(bag->Find(L"Value")), VT_I4);
    EXPECT_EQ(V_I4(bag->Find(L"Min")), -20);
}

TEST_F(ScrollPersistence, ANewScrollBarSavesOnlyThePushedColourOfItsArrows)
{
    // The arrows' design pushed colour is their active one, not the saved default.
    ASSERT_EQ(Persist(scroll)->InitNew(), S_OK);
    auto bag = NewBag();
    ASSERT_EQ(Persist(scroll)->Save(bag.Get(), TRUE, FALSE), S_OK);
    EXPECT_EQ(bag->Writes(), std::vector<std::wstring> { L"BackColorPushed" });
    EXPECT_EQ(V_I4(bag->Find(L"BackColorPushed")), 0xDEE7EF);
}

TEST_F(ScrollPersistence, LoadedNumbersAreStoredUncheckedAndRaiseNothing)
{
    auto sink = ComPtr<EventSink>::Adopt(new EventSink(*TolvaScrollClass.eventIid));
    ASSERT_NE(Advise(scroll.Unknown(), *TolvaScrollClass.eventIid, sink.Get()), 0u);
    auto bag = NewBag();
    bag->Put(L"Value", Long(900));
    bag->Put(L"Min", Long(50));
    bag->Put(L"Max", Long(10));
    bag->Put(L"SmallChange", Long(-4));
    ASSERT_EQ(Persist(scroll)->Load(bag.Get(), nullptr), S_OK);
    EXPECT_EQ(scroll.Core().Value(), 900);
    EXPECT_EQ(scroll.Core().Min(), 50);
    EXPECT_EQ(scroll.Core().Max(), 10);
    EXPECT_EQ(scroll.Core().SmallChange(), -4);
    EXPECT_TRUE(sink->Ids().empty());
}

TEST_F(ScrollPersistence, ABagTheScrollBarCannotTakeLeavesItAsItWas)
{
    Put(d, L"Value", Long(40));
    auto bag = NewBag();
    bag->Put(L"Value", Long(60));
    bag->Put(L"Max", Text(L"lots"));
    EXPECT_TRUE(FAILED(Persist(scroll)->Load(bag.Get(), nullptr)));
    EXPECT_EQ(scroll.Core().Value(), 40);
    EXPECT_EQ(scroll.Core().Max(), 100);
}

} // namespace
} // namespace tolva::win32::test
