// TolvaLabel through IDispatch and its connection point, as a client of the type library meets it.
#include "controls/label/tolva_label.h"
#include "platform/win32/com/bstr.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/hosted_object.h"
#include <gtest/gtest.h>
#include <olectl.h>

namespace tolva::win32::test {
namespace {

constexpr DISPID Click = 1, DblClick = 2, MouseDown = 3, MouseMove = 4, MouseUp = 5;
constexpr VARTYPE ShortByRef = VT_BYREF | VT_I2;
constexpr VARTYPE SingleByRef = VT_BYREF | VT_R4;

class LabelObject : public testing::Test {
protected:
    HostedObject<TolvaLabel> label { TolvaLabelClass };
    IDispatch* d = label.Dispatch();
    OleVariant result;
};

TEST_F(LabelObject, EveryPropertyRoundTripsByNameAndReadsBackByDispatchId)
{
    EXPECT_EQ(Put(d, L"Caption", Text(L"&Details")), S_OK);
    EXPECT_EQ(Put(d, L"MenuName", Text(L"mnuDetails")), S_OK);
    EXPECT_EQ(Put(d, L"Kerning", Bool(true)), S_OK);
    EXPECT_EQ(Put(d, L"BorderStyle", Long(1)), S_OK);
    EXPECT_EQ(Put(d, L"Alignment", Long(1)), S_OK);
    EXPECT_EQ(Put(d, L"ArrowIcon", Long(5)), S_OK);
    EXPECT_EQ(Put(d, L"ArrowPosition", Long(3)), S_OK);
    EXPECT_EQ(Put(d, L"Enabled", Bool(false)), S_OK);
    const std::pair<const wchar_t*, LONG> colours[] = { { L"BackColorPushed", 0x010101 },
        { L"BackColorActive", 0x020202 }, { L"ForeColorPushed", 0x030303 }, { L"ForeColorActive", 0x040404 },
        { L"ForeColor", LONG(0x80000008) }, { L"ForeColorDisabled", 0x060606 }, { L"BackColor", LONG(0x8000000F) } };
    for (auto [name, colour] : colours)
        EXPECT_EQ(Put(d, name, Long(colour)), S_OK) << ToUtf8(ViewOf(name));

    const TolvaLabel& c = label.Core();
    EXPECT_EQ(c.Caption(), u"&Details");
    EXPECT_EQ(c.MenuName(), u"mnuDetails");
    EXPECT_TRUE(c.Kerning());
    EXPECT_EQ(c.BorderStyle(), 1);
    EXPECT_EQ(c.Alignment(), 1);
    EXPECT_EQ(c.ArrowIcon(), 5);
    EXPECT_EQ(c.ArrowPosition(), 3);
    EXPECT_FALSE(c.Enabled());
    EXPECT_EQ(c.BackColor(), 0x8000000Fu);
    EXPECT_EQ(c.ForeColor(), 0x80000008u);

    for (auto [name, colour] : colours) {
        ASSERT_EQ(Call(d, IdOf(d, name), DISPATCH_PROPERTYGET, {}, result), S_OK);
        EXPECT_EQ(AsLong(result), colour) << ToUtf8(ViewOf(name));
    }
    Call(d, 0x68030006, DISPATCH_PROPERTYGET, {}, result);
    EXPECT_EQ(AsText(result), L"&Details");
    Call(d, 0x68030008, DISPATCH_PROPERTYGET, {}, result);
    EXPECT_EQ(V_BOOL(&result.Get()), VARIANT_TRUE);
}

TEST_F(LabelObject, OtherEnumerationsStoreWhateverTheyAreGiven)
{
    EXPECT_EQ(Put(d, L"ArrowIcon", Long(9)), S_OK);
    EXPECT_EQ(Put(d, L"Alignment", Long(-4)), S_OK);
    EXPECT_EQ(label.Core().ArrowIcon(), 9);
    EXPECT_EQ(label.Core().Alignment(), -4);
}

class LabelEvents : public LabelObject {
protected:
    void SetUp() override { ASSERT_NE(Advise(label.Unknown(), *TolvaLabelClass.eventIid, sink.Get()), 0u); }

    ComPtr<EventSink> sink = ComPtr<EventSink>::Adopt(new EventSink(*TolvaLabelClass.eventIid));
};

TEST_F(LabelEvents, ALeftPressAndReleaseClickBetweenTheMouseEvents)
{
    label.Input().OnMouseMove(0, 0, 45, 30);
    label.Input().OnMouseDown(1, 2, 45.5f, 30);
    label.Input().OnMouseUp(1, 2, 45.5f, 30);
    label.Input().OnDblClick();
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { MouseMove, MouseDown, Click, MouseUp, DblClick }));
    EXPECT_EQ(sink->Events()[1].types, (std::vector<VARTYPE> { ShortByRef, ShortByRef, SingleByRef, SingleByRef }));
    EXPECT_EQ(sink->Events()[1].values, (std::vector<double> { 1, 2, 45.5, 30 }));
    EXPECT_TRUE(sink->Events()[2].types.empty());
    EXPECT_TRUE(sink->Events()[4].types.empty());
}

} // namespace
} // namespace tolva::win32::test
