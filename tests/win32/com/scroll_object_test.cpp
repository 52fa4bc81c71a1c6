// TolvaScroll through IDispatch and its connection point, without a container: what a script's
// CreateObject or an embedding list gets. Refused values are silent here (no window could own a
// message box); the boxes themselves are tested in a container (tests/gui).
#include "controls/scroll/tolva_scroll.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/type_library.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/hosted_object.h"
#include "tests/win32/support/type_info_reading.h"
#include <gtest/gtest.h>
#include <map>

namespace tolva::win32::test {
namespace {

constexpr DISPID Change = 6, Scroll = 7;
constexpr HRESULT Overflow = HRESULT(0x800A0006);

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

TEST_F(ScrollObject, NewObjectHasTheDefaultRangeAndColours)
{
    EXPECT_EQ(Read(L"Value"), 1);
    EXPECT_EQ(Read(L"Min"), 1);
    EXPECT_EQ(Read(L"Max"), 100);
    EXPECT_EQ(Read(L"LargeChange"), 1);
    EXPECT_EQ(Read(L"SmallChange"), 1);
    EXPECT_EQ(Read(L"BackColor"), 0xCEDBDE);
    EXPECT_EQ(Read(L"BackColorActive"), 0xDEE7EF);
    EXPECT_EQ(Read(L"BackColorPushed"), 0xDEE7EF); // the arrows' design colour, until set or loaded
    EXPECT_EQ(Read(L"ForeColor"), 0x000000);
    EXPECT_EQ(Read(L"ForeColorActive"), 0xFFFFFF);
    OleVariant enabled;
    Get(d, L"Enabled", enabled);
    EXPECT_EQ(V_VT(&enabled.Get()), VT_BOOL);
    EXPECT_EQ(V_BOOL(&enabled.Get()), VARIANT_TRUE);
}

TEST_F(ScrollObject, DispatchIdsFollowTheLibrarysNumbering)
{
    const std::pair<const wchar_t*, DISPID> ids[] = {
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
    };
    for (auto [name, id] : ids)
        EXPECT_EQ(IdOf(d, name), id) << ToUtf8(ViewOf(name));
    OleVariant result;
    EXPECT_EQ(Call(d, 0x60030010, DISPATCH_METHOD, {}, result), S_OK);
    EXPECT_EQ(Call(d, -552, DISPATCH_METHOD, {}, result), S_OK); // no container: nothing modal
}

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

TEST_F(ScrollObject, EveryAcceptedValueAssignmentRaisesChangeAndNeverScroll)
{
    for (LONG v : { 5L, 5L, 100L, 1L })
        EXPECT_EQ(Put(d, L"Value", Long(v)), S_OK);
    EXPECT_EQ(Put(d, L"Value", Text(L"42")), S_OK);
    EXPECT_EQ(Put(d, L"Value", Double(7.5)), S_OK);
    EXPECT_EQ(Read(L"Value"), 8); // CLng rounds half to even
    EXPECT_EQ(sink->Ids(), std::vector<DISPID>(6, Change));
    EXPECT_TRUE(sink->Events()[0].types.empty());
}

TEST_F(ScrollObject, ValuesOutsideTheRangeAreRefusedSilentlyWithoutEvents)
{
    Put(d, L"Value", Long(50));
    const size_t before = sink->Ids().size();
    EXPECT_EQ(Put(d, L"Value", Long(0)), S_OK);
    EXPECT_EQ(Put(d, L"Value", Long(101)), S_OK);
    EXPECT_EQ(Read(L"Value"), 50);
    // A bound on the wrong side of the other one, and a page larger than the range.
    EXPECT_EQ(Put(d, L"Min", Long(100)), S_OK);
    EXPECT_EQ(Put(d, L"Max", Long(1)), S_OK);
    EXPECT_EQ(Put(d, L"LargeChange", Long(101)), S_OK);
    EXPECT_EQ(Read(L"Min"), 1);
    EXPECT_EQ(Read(L"Max"), 100);
    EXPECT_EQ(Read(L"LargeChange"), 1);
    EXPECT_EQ(sink->Ids().size(), before);
}

TEST_F(ScrollObject, BoundsPullTheValueInWithoutChangeAndCapTheSteps)
{
    Put(d, L"Value", Long(80));
    Put(d, L"LargeChange", Long(50));
    Put(d, L"SmallChange", Long(40));
    const size_t before = sink->Ids().size();
    EXPECT_EQ(Put(d, L"Max", Long(31)), S_OK);
    EXPECT_EQ(Read(L"Value"), 31);
    EXPECT_EQ(Read(L"LargeChange"), 30);
    EXPECT_EQ(Read(L"SmallChange"), 30);
    EXPECT_EQ(Put(d, L"Min", Long(30)), S_OK);
    EXPECT_EQ(Read(L"LargeChange"), 1);
    EXPECT_EQ(sink->Ids().size(), before);
}

TEST_F(ScrollObject, SmallChangeIsCheckedOnTheStoredStep)
{
    Put(d, L"Max", Long(10)); // range 9, steps up to 10
    EXPECT_EQ(Put(d, L"SmallChange", Long(500)), S_OK);
    EXPECT_EQ(Read(L"SmallChange"), 500);
    EXPECT_EQ(Put(d, L"SmallChange", Long(2)), S_OK);
    EXPECT_EQ(Read(L"SmallChange"), 500);
    EXPECT_EQ(Put(d, L"LargeChange", Long(-3)), S_OK); // no lower bound
    EXPECT_EQ(Read(L"LargeChange"), -3);
}

TEST_F(ScrollObject, ARangeBeyond32BitsIsAnOverflowErrorAfterTheBoundIsStored)
{
    EXPECT_EQ(Put(d, L"Min", Long(LONG(0x80000000))), Overflow); // Max - Min
    EXPECT_EQ(Read(L"Min"), LONG(0x80000000));
    EXPECT_EQ(Put(d, L"Min", Long(0)), S_OK);
    EXPECT_EQ(Put(d, L"Max", Long(0x7FFFFFFF)), S_OK);
    EXPECT_EQ(Put(d, L"LargeChange", Long(5)), Overflow); // Max - Min + 1
    EXPECT_EQ(Read(L"LargeChange"), 1);
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
}

TEST_F(ScrollObject, ScrollIsNeverRaisedByAssignments)
{
    Put(d, L"Max", Long(1000));
    for (LONG v = 1; v <= 1000; v += 37)
        Put(d, L"Value", Long(v));
    Put(d, L"Min", Long(500));
    Put(d, L"Max", Long(600));
    for (DISPID id : sink->Ids())
        EXPECT_NE(id, Scroll);
}

TEST(ScrollTypeLibrary, EventsAreDeclaredInTheirOrderWithChangeAndScrollLast)
{
    ComPtr<ITypeInfo> events = TypeLibrary::InfoOf(*TolvaScrollClass.eventIid);
    std::map<DISPID, std::pair<std::wstring, SHORT>> declared;
    ForEachFunction(events.Get(), [&](const FUNCDESC& function) {
        declared[function.memid] = { NameOf(events.Get(), function.memid), function.cParams };
    });
    EXPECT_EQ(declared,
        (std::map<DISPID, std::pair<std::wstring, SHORT>> { { 1, { L"Click", 0 } }, { 2, { L"DblClick", 0 } },
            { 3, { L"MouseDown", 4 } }, { 4, { L"MouseMove", 4 } }, { 5, { L"MouseUp", 4 } },
            { Change, { L"Change", 0 } }, { Scroll, { L"Scroll", 0 } } }));
}

TEST(ScrollTypeLibrary, TheSliderControlIsNotPublished)
{
    ComPtr<ITypeLib> library = TypeLibrary::Get();
    for (const wchar_t* hidden : { L"ctlScrollBox", L"picSlider" }) {
        std::wstring name = hidden;
        ComPtr<ITypeInfo> info;
        MEMBERID id = 0;
        USHORT found = 1;
        library->FindName(name.data(), 0, info.Put(), &id, &found);
        EXPECT_EQ(found, 0) << ToUtf8(ViewOf(hidden));
    }
}

} // namespace
} // namespace tolva::win32::test
