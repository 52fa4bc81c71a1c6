// TolvaLabel saved and loaded through IPersistPropertyBag and IPersistStreamInit: its read and
// write orders differ, and so do the defaults of BackColor and ForeColor, on purpose. That every
// value comes back is the round trip's to show (round_trip_test.cpp).
#include "controls/label/tolva_label.h"
#include "platform/win32/com/font_conversion.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/fake_client_site.h"
#include "tests/win32/support/hosted_object.h"
#include "tests/win32/support/persistence.h"
#include "tests/win32/support/recording_property_bag.h"
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

const std::vector<std::wstring> ReadOrder = { L"BackColor", L"ForeColor", L"Enabled", L"BorderStyle", L"Alignment",
    L"Caption", L"ForeColorActive", L"ForeColorDisabled", L"ArrowIcon", L"ArrowPosition", L"Kerning",
    L"ForeColorPushed", L"BackColorActive", L"BackColorPushed", L"MenuName", L"Font" };
const std::vector<std::wstring> WriteOrder = { L"BackColor", L"ForeColor", L"Enabled", L"Font", L"BorderStyle",
    L"Alignment", L"Caption", L"ForeColorActive", L"ForeColorDisabled", L"ArrowIcon", L"ArrowPosition", L"Kerning",
    L"ForeColorPushed", L"BackColorActive", L"BackColorPushed", L"MenuName" };

using Label = HostedObject<TolvaLabel>;

class LabelPersistence : public testing::Test {
protected:
    static ComPtr<IPersistPropertyBag> Persist(const Label& l)
    {
        return l.As<IPersistPropertyBag>(IID_IPersistPropertyBag);
    }
    static ComPtr<RecordingPropertyBag> NewBag()
    {
        return ComPtr<RecordingPropertyBag>::Adopt(new RecordingPropertyBag);
    }

    // Every property away from both its read and its write default.
    void SetEverything()
    {
        Put(d, L"BackColor", Long(0x203040));
        Put(d, L"ForeColor", Long(0x506070));
        Put(d, L"Enabled", Bool(false));
        Font bold = label.Core().GetFont();
        bold.SetBold(true);
        ComPtr<IFont> font = CreateStdFont(bold);
        Put(d, L"Font", Object(font.As<IDispatch>(IID_IDispatch).Get()), DISPATCH_PROPERTYPUTREF);
        Put(d, L"BorderStyle", Long(1));
        Put(d, L"Alignment", Long(1));
        Put(d, L"Caption", Text(L"Next &page"));
        Put(d, L"ForeColorActive", Long(0x0000FF));
        Put(d, L"ForeColorDisabled", Long(0x00FF00));
        Put(d, L"ArrowIcon", Long(5));
        Put(d, L"ArrowPosition", Long(2));
        Put(d, L"Kerning", Bool(true));
        Put(d, L"ForeColorPushed", Long(0x111111));
        Put(d, L"BackColorActive", Long(0x222222));
        Put(d, L"BackColorPushed", Long(0x333333));
        Put(d, L"MenuName", Text(L"mnuPages"));
    }

    Label label { TolvaLabelClass };
    IDispatch* d = label.Dispatch();
};

TEST_F(LabelPersistence, LoadReadsEveryKeyOnceInTheReadOrder)
{
    auto bag = NewBag();
    ASSERT_EQ(Persist(label)->Load(bag.Get(), nullptr), S_OK);
    EXPECT_EQ(bag->Reads(), ReadOrder);
}

TEST_F(LabelPersistence, SaveWritesEveryChangedKeyInTheWriteOrderWithFontFourth)
{
    SetEverything();
    auto bag = NewBag();
    ASSERT_EQ(Persist(label)->Save(bag.Get(), TRUE, TRUE), S_OK);
    EXPECT_EQ(bag->Writes(), WriteOrder);
    EXPECT_EQ(V_VT(bag->Find(L"BackColor")), VT_I4);
    EXPECT_EQ(V_VT(bag->Find(L"Kerning")), VT_BOOL);
    EXPECT_EQ(V_VT(bag->Find(L"ArrowIcon")), VT_I4);
    EXPECT_EQ(V_VT(bag->Find(L"Font")), VT_DISPATCH);
}

TEST_F(LabelPersistence, ANewLabelSavesItsColoursBecauseTheWriteDefaultsAreTheSystemOnes)
{
    ASSERT_EQ(Persist(label)->InitNew(), S_OK);
    auto bag = NewBag();
    ASSERT_EQ(Persist(label)->Save(bag.Get(), TRUE, FALSE), S_OK);
    // Black on white is always saved; the caption equals the read default "TolvaLabel1".
    EXPECT_EQ(bag->Writes(), (std::vector<std::wstring> { L"BackColor", L"ForeColor" }));
    EXPECT_EQ(V_I4(bag->Find(L"BackColor")), 0);
    EXPECT_EQ(V_I4(bag->Find(L"ForeColor")), 0xFFFFFF);
}

TEST_F(LabelPersistence, SystemButtonColoursAreNotSavedAndComeBackBlackAndWhite)
{
    Put(d, L"BackColor", Long(LONG(0x8000000F)));
    Put(d, L"ForeColor", Long(LONG(0x80000012)));
    auto bag = NewBag();
    ASSERT_EQ(Persist(label)->Save(bag.Get(), TRUE, FALSE), S_OK);
    EXPECT_EQ(bag->Find(L"BackColor"), nullptr);
    EXPECT_EQ(bag->Find(L"ForeColor"), nullptr);

    Label loaded { TolvaLabelClass };
    ASSERT_EQ(Persist(loaded)->Load(bag.Get(), nullptr), S_OK);
    EXPECT_EQ(loaded.Core().BackColor(), 0x000000u);
    EXPECT_EQ(loaded.Core().ForeColor(), 0xFFFFFFu);

    Label streamed { TolvaLabelClass };
    ASSERT_EQ(CopyThroughStream(label.Unknown(), streamed.Unknown()), S_OK);
    EXPECT_EQ(streamed.Core().BackColor(), 0x000000u);
    EXPECT_EQ(streamed.Core().ForeColor(), 0xFFFFFFu);
}

TEST_F(LabelPersistence, MissingKeysGiveTheReadDefaultsNotTheInstanceName)
{
    auto site = ComPtr<FakeClientSite>::Adopt(new FakeClientSite);
    site->Extender().AddText(1, L"Name", L"lblTotal");
    label.Object().Site().SetClientSite(site.Get());
    Put(d, L"Caption", Text(L"Changed"));
    Put(d, L"ArrowPosition", Long(3));
    ASSERT_EQ(Persist(label)->Load(NewBag().Get(), nullptr), S_OK);
    EXPECT_EQ(label.Core().Caption(), u"TolvaLabel1");
    EXPECT_EQ(label.Core().ArrowPosition(), 0);
    EXPECT_EQ(label.Core().ForeColorActive(), 0x9CDFF7u);

    ASSERT_EQ(Persist(label)->InitNew(), S_OK);
    EXPECT_EQ(label.Core().Caption(), u"lblTotal");
    label.Object().Site().SetClientSite(nullptr);
}

TEST_F(LabelPersistence, ABagTheLabelCannotTakeLeavesItAsItWas)
{
    Put(d, L"Caption", Text(L"Before"));
    auto bag = NewBag();
    bag->Put(L"Caption", Text(L"After"));
    bag->Put(L"BorderStyle", Long(7)); // no such border
    EXPECT_TRUE(FAILED(Persist(label)->Load(bag.Get(), nullptr)));
    EXPECT_EQ(label.Core().Caption(), u"Before");
    EXPECT_EQ(label.Core().BorderStyle(), 0);

    auto second = NewBag();
    second->Put(L"Kerning", Text(L"sometimes"));
    EXPECT_TRUE(FAILED(Persist(label)->Load(second.Get(), nullptr)));
    EXPECT_FALSE(label.Core().Kerning());
}

} // namespace
} // namespace tolva::win32::test
