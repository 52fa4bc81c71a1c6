// What the control learns from its container through the client site: ambients, extender and
// the parent form; and the defaults it uses without one.
#include "core/automation_error.h"
#include "platform/win32/com/font_conversion.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/fake_client_site.h"
#include "tests/win32/support/font_printing.h"
#include <gtest/gtest.h>
#include <cmath>
#include <olectl.h>

namespace tolva::win32::test {
namespace {

class ControlSiteTest : public testing::Test {
protected:
    void TearDown() override { command.Object().Site().SetClientSite(nullptr); }

    void UseSite() { command.Object().Site().SetClientSite(site.Get()); }
    ControlSite& Site() { return command.Object().Site(); }

    CommandObject command;
    ComPtr<FakeClientSite> site = ComPtr<FakeClientSite>::Adopt(new FakeClientSite);
};

// Without a container, and with one that lacks the ambients and the extender.
TEST_F(ControlSiteTest, WithoutAContainerOrItsAmbientsTheDefaultsApply)
{
    for (bool container : { false, true }) {
        if (container)
            UseSite();
        EXPECT_TRUE(Site().UserMode());
        EXPECT_FALSE(Site().DisplayAsDefault());
        EXPECT_EQ(Site().AmbientFont(), Font());
        EXPECT_EQ(Site().ExtenderName(), u"TolvaCommand1");
        EXPECT_EQ(Site().Parent(), nullptr);
    }
    command.Object().Site().SetClientSite(nullptr);
    EXPECT_EQ(Site().MessageBox(u"Invalid property value", 48), 0); // refused, nothing shown
}

TEST_F(ControlSiteTest, AmbientsComeFromTheSitesDispatchInterface)
{
    site->Ambients().AddValue(DISPID_AMBIENT_USERMODE, L"UserMode", Bool(false));
    site->Ambients().AddValue(DISPID_AMBIENT_DISPLAYASDEFAULT, L"DisplayAsDefault", Bool(true));
    Font tahoma;
    tahoma.name = u"Tahoma";
    tahoma.weight = 700;
    ComPtr<IFont> font = CreateStdFont(tahoma);
    site->Ambients().AddObject(DISPID_AMBIENT_FONT, L"Font", font.As<IDispatch>(IID_IDispatch).Get());
    UseSite();
    EXPECT_FALSE(Site().UserMode());
    EXPECT_TRUE(Site().DisplayAsDefault());
    EXPECT_EQ(Site().AmbientFont(), tahoma);
    EXPECT_TRUE(Site().AmbientFont().Bold());
}

TEST_F(ControlSiteTest, FormattingIsTheSystemsInTheUsersLocale)
{
    Formatter& formatter = Site().Formatting();
    EXPECT_EQ(formatter.Format(Variant(1234.5), u"Currency"), u"$1,234.50");
    EXPECT_EQ(formatter.Format(Variant(OleDate(36892.5)), u"mm/dd/yyyy hh:nn"), u"01/01/2001 12:00");
    EXPECT_EQ(formatter.TextToCurrency(u"($1,234.56)"), Currency::FromRaw(-12345600));
    EXPECT_EQ(formatter.TextToDate(u"1/2/2003").Serial(), 37623);
    EXPECT_TRUE(formatter.IsDate(u"February 3, 2001"));
    EXPECT_FALSE(formatter.IsNumeric(u"12 apples"));
    EXPECT_THROW(formatter.TextToCurrency(u"1e30"), AutomationError);

    SYSTEMTIME now = {};
    GetLocalTime(&now);
    const OleDate today = formatter.Today();
    EXPECT_EQ(today.Serial(), std::trunc(today.Serial()));
    EXPECT_EQ(today.Year(), now.wYear);
    EXPECT_EQ(today.Day(), now.wDay);
}

TEST_F(ControlSiteTest, ExtenderGivesNameAndSize)
{
    site->Extender().AddText(1, L"Name", L"cmdOK");
    site->Extender().AddValue(2, L"Width", Double(1215));
    site->Extender().AddValue(3, L"Height", Text(L"375")); // whatever type the container uses
    UseSite();
    EXPECT_EQ(Site().ExtenderName(), u"cmdOK");
    EXPECT_EQ(Site().ExtenderWidth(), 1215.0f);
    EXPECT_EQ(Site().ExtenderHeight(), 375.0f);
}

// A VB-like form: Controls(name), hwnd and PopupMenu, recording the pop-up calls.
class FormFixture : public ControlSiteTest {
protected:
    void SetUp() override
    {
        menu->AddText(1, L"Name", L"mnuFile");
        controls->AddMember(DISPID_VALUE, L"Item", [this](WORD, const std::vector<VARIANT*>& arguments, VARIANT& r) {
            if (arguments.size() != 1 || V_VT(arguments[0]) != VT_BSTR)
                return DISP_E_BADPARAMCOUNT;
            if (_wcsicmp(V_BSTR(arguments[0]), L"mnuFile") != 0)
                return DISP_E_MEMBERNOTFOUND; // VB raises "Control not found"
            V_VT(&r) = VT_DISPATCH;
            V_DISPATCH(&r) = menu.Get();
            menu->AddRef();
            return S_OK;
        });
        form->AddObject(1, L"Controls", controls.Get());
        form->AddLong(2, L"hwnd", LONG(reinterpret_cast<intptr_t>(GetDesktopWindow())));
        form->AddMember(3, L"PopupMenu", [this](WORD, const std::vector<VARIANT*>& arguments, VARIANT&) {
            popups.push_back({});
            for (VARIANT* a : arguments) {
                VARIANT copy;
                VariantInit(&copy);
                VariantCopy(&copy, a);
                popups.back().push_back(copy);
            }
            return S_OK;
        });
        site->Extender().AddText(1, L"Name", L"cmdFile");
        site->Extender().AddValue(2, L"Height", Long(375));
        site->Extender().AddObject(3, L"Parent", form.Get());
        UseSite();
        Put(command.Dispatch(), L"Style", Long(1));
        Put(command.Dispatch(), L"MenuName", Text(L"mnuFile"));
    }
    void TearDown() override
    {
        for (auto& call : popups)
            for (VARIANT& v : call)
                VariantClear(&v);
        ControlSiteTest::TearDown();
    }

    void Click()
    {
        command.Input().OnMouseDown(1, 0, 10, 10);
        command.Input().OnMouseUp(1, 0, 10, 10);
    }

    ComPtr<FakeDispatch> form = ComPtr<FakeDispatch>::Adopt(new FakeDispatch);
    ComPtr<FakeDispatch> controls = ComPtr<FakeDispatch>::Adopt(new FakeDispatch);
    ComPtr<FakeDispatch> menu = ComPtr<FakeDispatch>::Adopt(new FakeDispatch);
    std::vector<std::vector<VARIANT>> popups;
};

TEST_F(FormFixture, AMenuButtonPopsUpTheNamedMenuUnderItself)
{
    Click();
    ASSERT_EQ(popups.size(), 1u);
    const std::vector<VARIANT>& call = popups[0];
    ASSERT_EQ(call.size(), 4u);
    EXPECT_EQ(V_VT(&call[0]), VT_DISPATCH);
    EXPECT_EQ(V_DISPATCH(&call[0]), static_cast<IDispatch*>(menu.Get()));
    EXPECT_EQ(V_VT(&call[1]), VT_ERROR); // no flags
    EXPECT_EQ(V_ERROR(&call[1]), DISP_E_PARAMNOTFOUND);
    EXPECT_EQ(V_R8(&call[2]), 0.0); // a windowless button sits at the screen origin, as the desktop does
    EXPECT_EQ(V_R8(&call[3]), 375.0); // plus the button's height
}

TEST_F(FormFixture, NoMenuForANormalButtonOrAnUnknownName)
{
    Put(command.Dispatch(), L"Style", Long(0));
    Click();
    EXPECT_TRUE(popups.empty());
    Put(command.Dispatch(), L"Style", Long(1));
    Put(command.Dispatch(), L"MenuName", Text(L"mnuNothing"));
    Click();
    EXPECT_TRUE(popups.empty());
}

TEST_F(FormFixture, AFormWithoutTheMembersGivesNoMenuAndNoError)
{
    auto bare = ComPtr<FakeDispatch>::Adopt(new FakeDispatch);
    auto otherSite = ComPtr<FakeClientSite>::Adopt(new FakeClientSite);
    otherSite->Extender().AddObject(3, L"Parent", bare.Get());
    command.Object().Site().SetClientSite(otherSite.Get());
    Click();
    EXPECT_TRUE(popups.empty());
    EXPECT_EQ(command.Control().Mouse().pushed, false);
}

} // namespace
} // namespace tolva::win32::test
