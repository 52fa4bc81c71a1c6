// IPersistPropertyBag of TolvaCommand with a container bag that records what happens to it.
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/fake_client_site.h"
#include "tests/win32/support/recording_property_bag.h"
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

const std::vector<std::wstring> KeyOrder = { L"BackColor", L"BackColorActive", L"BackColorPushed", L"ForeColorDisabled",
    L"MenuName", L"ForeColor", L"Enabled", L"Font", L"Caption", L"Style", L"Alignment" };

class CommandPropertyBag : public testing::Test {
protected:
    ComPtr<IPersistPropertyBag> Persist(const CommandObject& c)
    {
        return c.As<IPersistPropertyBag>(IID_IPersistPropertyBag);
    }
    ComPtr<RecordingPropertyBag> NewBag() { return ComPtr<RecordingPropertyBag>::Adopt(new RecordingPropertyBag); }

    CommandObject command;
    IDispatch* d = command.Dispatch();
};

TEST_F(CommandPropertyBag, LoadReadsEveryKeyOnceInTheControlsOrderAndMissingOnesGiveTheDefaults)
{
    Put(d, L"Caption", Text(L"Changed"));
    Put(d, L"BackColor", Long(1));
    Put(d, L"Enabled", Bool(false));
    auto bag = NewBag();
    ASSERT_EQ(Persist(command)->Load(bag.Get(), nullptr), S_OK);
    EXPECT_EQ(bag->Reads(), KeyOrder);
    EXPECT_EQ(command.Control().Caption(), u"Command"); // a loaded control does not take its name
    EXPECT_EQ(command.Control().BackColor(), 0xCEDBDEu);
    EXPECT_EQ(command.Control().ForeColor(), 0x80000012u);
    EXPECT_TRUE(command.Control().Enabled());
}

TEST_F(CommandPropertyBag, SaveWritesOnlyWhatDiffersFromTheDefaults)
{
    auto bag = NewBag();
    ASSERT_EQ(Persist(command)->InitNew(), S_OK);
    ASSERT_EQ(Persist(command)->Save(bag.Get(), TRUE, FALSE), S_OK);
    EXPECT_EQ(bag->Writes(), std::vector<std::wstring> { L"Caption" }); // "TolvaCommand1", not "Command"

    // That every value comes back is the round trip's to show (round_trip_test.cpp).
    Put(d, L"BackColorPushed", Long(0x102030));
    Put(d, L"Enabled", Bool(false));
    Put(d, L"Style", Long(1));
    Put(d, L"Caption", Text(L"Command"));
    auto second = NewBag();
    Persist(command)->Save(second.Get(), TRUE, FALSE);
    EXPECT_EQ(second->Writes(), (std::vector<std::wstring> { L"BackColorPushed", L"Enabled", L"Style" }));
    EXPECT_EQ(V_VT(second->Find(L"BackColorPushed")), VT_I4);
    EXPECT_EQ(V_VT(second->Find(L"Enabled")), VT_BOOL);
    EXPECT_EQ(V_VT(second->Find(L"Style")), VT_I4);
}

TEST_F(CommandPropertyBag, ValuesStoredInOtherTypesAreConverted)
{
    auto bag = NewBag();
    VARIANT colour;
    V_VT(&colour) = VT_UI4;
    V_UI4(&colour) = 0x8000000F;
    bag->Put(L"BackColor", colour);
    bag->Put(L"Style", Text(L"1"));
    bag->Put(L"Enabled", Short(0));
    ASSERT_EQ(Persist(command)->Load(bag.Get(), nullptr), S_OK);
    EXPECT_EQ(command.Control().BackColor(), 0x8000000Fu);
    EXPECT_EQ(command.Control().Style(), 1);
    EXPECT_FALSE(command.Control().Enabled());
}

TEST_F(CommandPropertyBag, AValueThatDoesNotConvertLeavesTheControlAsItWas)
{
    Put(d, L"Caption", Text(L"Before"));
    Put(d, L"BackColor", Long(7));
    auto bag = NewBag();
    bag->Put(L"BackColor", Long(9));
    bag->Put(L"Font", Text(L"Arial")); // a font must be a font object
    EXPECT_TRUE(FAILED(Persist(command)->Load(bag.Get(), nullptr)));
    EXPECT_EQ(command.Control().Caption(), u"Before");
    EXPECT_EQ(command.Control().BackColor(), 7u);

    auto second = NewBag();
    second->Put(L"Style", Text(L"menu"));
    EXPECT_TRUE(FAILED(Persist(command)->Load(second.Get(), nullptr)));
    EXPECT_EQ(command.Control().Style(), 0);
}

TEST_F(CommandPropertyBag, ADesignerPlacingTheControlGivesItTheExtenderName)
{
    auto site = ComPtr<FakeClientSite>::Adopt(new FakeClientSite);
    site->Extender().AddText(1, L"Name", L"cmdPost");
    command.Object().Site().SetClientSite(site.Get());
    ASSERT_EQ(Persist(command)->InitNew(), S_OK);
    EXPECT_EQ(command.Control().Caption(), u"cmdPost");
    command.Object().Site().SetClientSite(nullptr);
}

TEST_F(CommandPropertyBag, DirtyFollowsDesignerChangesAndSaves)
{
    auto stream = command.As<IPersistStreamInit>(IID_IPersistStreamInit);
    ASSERT_EQ(Persist(command)->InitNew(), S_OK);
    EXPECT_EQ(stream->IsDirty(), S_FALSE);
    Put(d, L"MenuName", Text(L"mnuFile")); // stores only: the form is not marked dirty
    EXPECT_EQ(stream->IsDirty(), S_FALSE);
    Put(d, L"Caption", Text(L"Post"));
    EXPECT_EQ(stream->IsDirty(), S_OK);
    auto bag = NewBag();
    Persist(command)->Save(bag.Get(), FALSE, FALSE);
    EXPECT_EQ(stream->IsDirty(), S_OK);
    Persist(command)->Save(bag.Get(), TRUE, FALSE);
    EXPECT_EQ(stream->IsDirty(), S_FALSE);
}

} // namespace
} // namespace tolva::win32::test
