#include "platform/win32/gdi/gdi_canvas.h"
#include "platform/win32/inplace/himetric.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/hosted_form.h"
#include "tests/gui/sample_forms.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/fake_client_site.h"
#include <gtest/gtest.h>
#include <olectl.h>

namespace tolva::win32 {
namespace {

using test::HostedForm;
using test::Pixels;
using Lines = std::vector<std::string>;

constexpr uint32_t Black = 0x000000;
constexpr uint32_t Normal = 0xCEDBDE;

// The interfaces a container may use besides in-place activation, called directly on a control
// that sits in place on a form of the form host.
class InPlaceInterfaces : public testing::Test {
protected:
    template <class I> ComPtr<I> Control(const IID& iid, StringView name = u"cmdOK")
    {
        return ComPtr<IUnknown>(hosted.Control(name).Object()).As<I>(iid);
    }

    HostedForm hosted { test::ButtonsForm };
};

TEST_F(InPlaceInterfaces, ViewObjectDrawsTheWindowsPictureIntoAnyDeviceContext)
{
    auto view = Control<IViewObject2>(IID_IViewObject2);
    ASSERT_TRUE(view);
    Pixels onScreen = Pixels::OfWindow(hosted.Window(u"cmdOK"));
    GdiCanvas target(nullptr, 100, 30);
    const RECTL bounds { 0, 0, 100, 30 };
    ASSERT_EQ(
        view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, target.Dc(), &bounds, nullptr, nullptr, 0), S_OK);
    Pixels drawn = Pixels::OfDc(target.Dc(), 100, 30);
    EXPECT_EQ(drawn.DifferencesFrom(onScreen), 0);
    EXPECT_EQ(view->Draw(DVASPECT_ICON, -1, nullptr, nullptr, nullptr, target.Dc(), &bounds, nullptr, nullptr, 0),
        DV_E_DVASPECT);
    SIZEL extent {};
    ASSERT_EQ(view->GetExtent(DVASPECT_CONTENT, -1, nullptr, &extent), S_OK);
    EXPECT_EQ(extent.cx, PixelsToHimetric(100));
    EXPECT_EQ(extent.cy, PixelsToHimetric(30));
}

TEST_F(InPlaceInterfaces, ControlInfoCarriesTheCaptionsAccessKey)
{
    auto control = Control<IOleControl>(IID_IOleControl);
    CONTROLINFO info {};
    info.cb = sizeof info;
    ASSERT_EQ(control->GetControlInfo(&info), S_OK);
    ASSERT_EQ(info.cAccel, 1);
    ACCEL key {};
    CopyAcceleratorTableW(info.hAccel, &key, 1);
    EXPECT_EQ(key.key, 'O');
    EXPECT_EQ(key.fVirt & (FALT | FVIRTKEY), FALT | FVIRTKEY);
    EXPECT_EQ(info.dwFlags, DWORD(CTRLINFO_EATS_RETURN));

    test::Put(hosted.Control(u"cmdOK").Extender(), L"Caption", test::Text(L"Save && close"));
    ASSERT_EQ(control->GetControlInfo(&info), S_OK);
    EXPECT_EQ(info.cAccel, 0);
}

TEST_F(InPlaceInterfaces, AMnemonicClicks)
{
    auto control = Control<IOleControl>(IID_IOleControl);
    hosted.Take();
    MSG alt { hosted.Window(u"cmdOK"), WM_SYSKEYDOWN, 'O', 0x20000000, 0, {} };
    ASSERT_EQ(control->OnMnemonic(&alt), S_OK);
    EXPECT_EQ(hosted.Take(), (Lines { "cmdOK_Click", "cmdOK_MouseUp 1, 0, 0, 0" }));
}

TEST_F(InPlaceInterfaces, AnAmbientChangeRepaints)
{
    HWND ok = hosted.Window(u"cmdOK"); // not focused: the mark at (1, 1) is the default mark alone
    EXPECT_EQ(Pixels::OfWindow(ok).At(1, 1), Normal);
    ASSERT_EQ(test::Put(hosted.Control(u"cmdOK").Extender(), L"Default", test::Bool(true)), S_OK);
    EXPECT_EQ(Pixels::OfWindow(ok).At(1, 1), Black);
    ASSERT_EQ(test::Put(hosted.Control(u"cmdMenu").Extender(), L"Default", test::Bool(true)), S_OK);
    EXPECT_EQ(Pixels::OfWindow(ok).At(1, 1), Normal);
}

TEST_F(InPlaceInterfaces, OleObjectAnswersStatusExtentAndVerbs)
{
    auto object = Control<IOleObject>(IID_IOleObject);
    DWORD status = 0;
    ASSERT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_TRUE(status & OLEMISC_ACTSLIKEBUTTON);
    EXPECT_TRUE(status & OLEMISC_SETCLIENTSITEFIRST);
    SIZEL extent {};
    ASSERT_EQ(object->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_EQ(extent.cx, PixelsToHimetric(100));
    HWND window = hosted.Window(u"cmdOK");
    ASSERT_EQ(object->DoVerb(OLEIVERB_HIDE, nullptr, nullptr, 0, nullptr, nullptr), S_OK);
    EXPECT_FALSE(IsWindowVisible(window));
    ASSERT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), S_OK);
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_EQ(GetFocus(), window); // shown and UI-active
    ASSERT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(hosted.Control(u"cmdOK").Window(), nullptr);
}

TEST(OleObjectOutOfPlace, TakesItsSizeFromSetExtentUntilActivated)
{
    test::CommandObject command;
    auto object = command.As<IOleObject>(IID_IOleObject);
    SIZEL asked { PixelsToHimetric(80), PixelsToHimetric(24) };
    ASSERT_EQ(object->SetExtent(DVASPECT_CONTENT, &asked), S_OK);
    SIZEL extent {};
    ASSERT_EQ(object->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_EQ(extent.cx, asked.cx);
    EXPECT_EQ(extent.cy, asked.cy);
    // Without a window the view still draws, at any size.
    auto view = command.As<IViewObject2>(IID_IViewObject2);
    GdiCanvas target(nullptr, 80, 24);
    const RECTL bounds { 0, 0, 80, 24 };
    ASSERT_EQ(
        view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, target.Dc(), &bounds, nullptr, nullptr, 0), S_OK);
    Pixels drawn = Pixels::OfDc(target.Dc(), 80, 24);
    EXPECT_EQ(drawn.At(0, 0), Black);
    EXPECT_EQ(drawn.At(79, 23), Black);
    EXPECT_EQ(drawn.At(75, 3), Normal);
}

TEST(QuickActivate, SetsTheSiteAndConnectsTheSinksInOneCall)
{
    test::CommandObject command;
    auto quick = command.As<IQuickActivate>(IID_IQuickActivate);
    ASSERT_TRUE(quick);
    auto site = ComPtr<test::FakeClientSite>::Adopt(new test::FakeClientSite);
    auto sink = ComPtr<test::EventSink>::Adopt(new test::EventSink(*TolvaCommandClass.eventIid));
    QACONTAINER container {};
    container.cbSize = sizeof container;
    container.pClientSite = site.Get();
    container.pUnkEventSink = static_cast<IDispatch*>(sink.Get());
    QACONTROL control {};
    control.cbSize = sizeof control;
    ASSERT_EQ(quick->QuickActivate(&container, &control), S_OK);
    EXPECT_NE(control.dwEventCookie, 0u);
    EXPECT_TRUE(control.dwMiscStatus & OLEMISC_ACTSLIKEBUTTON);
    EXPECT_TRUE(control.dwViewStatus & VIEWSTATUS_OPAQUE);
    ComPtr<IOleClientSite> current;
    command.As<IOleObject>(IID_IOleObject)->GetClientSite(current.Put());
    EXPECT_EQ(current.Get(), static_cast<IOleClientSite*>(site.Get()));

    test::Put(command.Dispatch(), L"Caption", test::Text(L"&Go"));
    MSG alt { nullptr, WM_SYSKEYDOWN, 'G', 0x20000000, 0, {} };
    command.As<IOleControl>(IID_IOleControl)->OnMnemonic(&alt);
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { 1, 8 }));
    command.As<IOleObject>(IID_IOleObject)->SetClientSite(nullptr);
}

} // namespace
} // namespace tolva::win32
