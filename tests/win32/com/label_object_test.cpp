// TolvaLabel through IDispatch and its connection point, as a client of the type library meets it.
#include "controls/label/tolva_label.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/type_library.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/hosted_object.h"
#include "tests/win32/support/type_info_reading.h"
#include <gtest/gtest.h>
#include <map>
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

// The values of the enumeration that property id of the label's dispinterface is declared with.
std::map<std::wstring, LONG> EnumOfProperty(DISPID id)
{
    ComPtr<ITypeInfo> dispatch = TypeLibrary::InfoOf(*TolvaLabelClass.dispatchIid);
    std::map<std::wstring, LONG> values;
    ForEachFunction(dispatch.Get(), [&](const FUNCDESC& function) {
        const TYPEDESC& type = function.elemdescFunc.tdesc;
        if (function.memid != id || function.invkind != INVOKE_PROPERTYGET || type.vt != VT_USERDEFINED)
            return;
        ComPtr<ITypeInfo> enumeration;
        dispatch->GetRefTypeInfo(type.hreftype, enumeration.Put());
        values = EnumerationValues(enumeration.Get());
    });
    return values;
}

TEST(LabelTypeLibrary, EnumerationsMatchTheCoreConstantsEvenWhereNamesRepeat)
{
    using Values = std::map<std::wstring, LONG>;
    EXPECT_EQ(EnumOfProperty(0x68030009),
        (Values { { L"None", tkLabelBorderStyle::None }, { L"Inset", tkLabelBorderStyle::Inset } }));
    EXPECT_EQ(EnumOfProperty(0x6803000F),
        (Values { { L"tkAlignLeft", tkLabelAlignment::tkAlignLeft },
            { L"tkAlignCenter", tkLabelAlignment::tkAlignCenter } }));
    EXPECT_EQ(EnumOfProperty(0x68030004),
        (Values { { L"tkArrowLeft", tkArrowIcon::tkArrowLeft }, { L"tkArrowRight", tkArrowIcon::tkArrowRight },
            { L"tkArrowUp", tkArrowIcon::tkArrowUp }, { L"tkArrowDown", tkArrowIcon::tkArrowDown },
            { L"tkPointerLeft", tkArrowIcon::tkPointerLeft }, { L"tkPointerRight", tkArrowIcon::tkPointerRight } }));
    // tkLeft is 1 here and 0 in tkCommandAlignment: each enumeration keeps its own.
    EXPECT_EQ(EnumOfProperty(0x68030003),
        (Values { { L"tkNone", tkArrowPosition::tkNone }, { L"tkLeft", tkArrowPosition::tkLeft },
            { L"tkRight", tkArrowPosition::tkRight }, { L"tkEnd", tkArrowPosition::tkEnd } }));
}

TEST(LabelTypeLibrary, EventsAreTheFiveMouseEventsWithArgumentsByReference)
{
    ComPtr<ITypeInfo> events = TypeLibrary::InfoOf(*TolvaLabelClass.eventIid);
    std::map<DISPID, std::pair<std::wstring, std::vector<VARTYPE>>> declared;
    ForEachFunction(events.Get(), [&](const FUNCDESC& function) {
        std::vector<VARTYPE> parameters;
        for (SHORT p = 0; p < function.cParams; ++p) {
            const TYPEDESC& t = function.lprgelemdescParam[p].tdesc;
            parameters.push_back(t.vt == VT_PTR ? VARTYPE(VT_BYREF | t.lptdesc->vt) : t.vt);
        }
        declared[function.memid] = { NameOf(events.Get(), function.memid), parameters };
    });
    const std::vector<VARTYPE> mouse = { ShortByRef, ShortByRef, SingleByRef, SingleByRef };
    using Event = std::pair<std::wstring, std::vector<VARTYPE>>;
    EXPECT_EQ(declared,
        (std::map<DISPID, Event> { { Click, { L"Click", {} } }, { DblClick, { L"DblClick", {} } },
            { MouseDown, { L"MouseDown", mouse } }, { MouseMove, { L"MouseMove", mouse } },
            { MouseUp, { L"MouseUp", mouse } } }));
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
