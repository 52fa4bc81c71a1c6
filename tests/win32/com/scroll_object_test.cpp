// TolvaScroll through IDispatch, its connection point and its property bag, without a container:
// what a script's CreateObject or an embedding list gets. The rules of the range and the steps,
// and the key order, are the core control's (tests/unit/scroll); a control without a container
// runs in user mode and shows no message box (site_test.cpp); the boxes themselves are tested in a
// container (tests/gui).
#include "controls/scroll/tolva_scroll.h"
#include "platform/win32/com/bstr.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/hosted_object.h"
#include "tests/win32/support/persistence.h"
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

constexpr DISPID Change = 6;

class ScrollObject : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(Advise(scroll.Unknown(), *TolvaScrollClass.eventIid, sink.Get()), 0u); }

    LONG Read(const wchar_t* name)
    {
        OleVariant value;
        EXPECT_EQ(Get(d, name, value), S_OK) << ToUtf8(ViewOf(name));
        EXPECT_EQ(V_VT(&value.Get()), VT_I4) << ToUtf8(ViewOf(name));
        return AsLong(value);
    }

    HostedObject<TolvaScroll> scroll { TolvaScrollClass };
    IDispatch* d = scroll.Dispatch();
    ComPtr<EventSink> sink = ComPtr<EventSink>::Adopt(new EventSink(*TolvaScrollClass.eventIid));
};

TEST_F(ScrollObject, ColoursReadBackAsSet)
{
    const std::pair<const wchar_t*, LONG> colours[]
        = { { L"BackColor", 0x010203 }, { L"BackColorActive", 0x040506 }, { L"BackColorPushed", 0x070809 },
              { L"ForeColor", LONG(0x80000012) }, { L"ForeColorActive", 0x0A0B0C }, { L"ForeColorPushed", 0x0D0E0F } };
    for (auto [name, colour] : colours)
        EXPECT_EQ(Put(d, name, Long(colour)), S_OK) << ToUtf8(ViewOf(name));
    for (auto [name, colour] : colours)
        EXPECT_EQ(Read(name), colour) << ToUtf8(ViewOf(name));
    EXPECT_EQ(Put(d, L"Enabled", Bool(false)), S_OK);
    EXPECT_FALSE(scroll.Core().Enabled());
    EXPECT_TRUE(sink->Ids().empty());
}

TEST_F(ScrollObject, AChangeHandlerMayAssignTheValueAgain)
{
    IDispatch* dispatch = d;
    int depth = 0;
    sink->OnEvent([&](DISPID id, const std::vector<VARIANT*>&) {
        if (id == Change && depth++ == 0)
            Put(dispatch, L"Value", Long(20));
    });
    Put(d, L"Value", Long(10));
    EXPECT_EQ(Read(L"Value"), 20);
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { Change, Change }));
    EXPECT_TRUE(sink->Events()[0].types.empty());
}

TEST_F(ScrollObject, ANewScrollBarSavesOnlyThePushedColourOfItsArrows)
{
    // The arrows' design pushed colour is their active one, not the saved default.
    ASSERT_EQ(scroll.As<IPersistPropertyBag>(IID_IPersistPropertyBag)->InitNew(), S_OK);
    auto bag = SavedBag(scroll.Unknown(), FALSE);
    ASSERT_TRUE(bag);
    EXPECT_EQ(bag->Writes(), std::vector<std::wstring> { L"BackColorPushed" });
    EXPECT_EQ(V_I4(bag->Find(L"BackColorPushed")), 0xDEE7EF);
}

TEST_F(ScrollObject, LoadedNumbersAreStoredUncheckedAndRaiseNothing)
{
    auto bag = ComPtr<RecordingPropertyBag>::Adopt(new RecordingPropertyBag);
    bag->Put(L"Value", Long(900));
    bag->Put(L"Min", Long(50));
    bag->Put(L"Max", Long(10));
    bag->Put(L"SmallChange", Long(-4));
    ASSERT_EQ(LoadBag(scroll.Unknown(), bag.Get()), S_OK);
    EXPECT_EQ(scroll.Core().Value(), 900);
    EXPECT_EQ(scroll.Core().Min(), 50);
    EXPECT_EQ(scroll.Core().Max(), 10);
    EXPECT_EQ(scroll.Core().SmallChange(), -4);
    EXPECT_TRUE(sink->Ids().empty());
}

} // namespace
} // namespace tolva::win32::test
