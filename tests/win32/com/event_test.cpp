// Events of TolvaCommand through its connection point: ids, by-reference arguments that the
// control sees changed, and sinks that release the object or call back into it.
#include "platform/win32/com/module.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include <gtest/gtest.h>
#include <olectl.h>

namespace tolva::win32::test {
namespace {

constexpr DISPID Click = 1, DblClick = 2, KeyDown = 3, KeyPress = 4, KeyUp = 5, MouseDown = 6, MouseMove = 7,
                 MouseUp = 8;
constexpr VARTYPE ShortByRef = VT_BYREF | VT_I2;
constexpr VARTYPE SingleByRef = VT_BYREF | VT_R4;

class CommandEvents : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(Advise(command.Unknown(), *TolvaCommandClass.eventIid, sink.Get()), 0u); }

    CommandObject command;
    ComPtr<EventSink> sink = ComPtr<EventSink>::Adopt(new EventSink(*TolvaCommandClass.eventIid));
};

TEST_F(CommandEvents, MouseEventsCarryShortsAndSinglesByReference)
{
    command.Input().OnMouseDown(2, 1, 150.0f, 75.5f);
    ASSERT_EQ(sink->Events().size(), 1u);
    const EventSink::Event& down = sink->Events()[0];
    EXPECT_EQ(down.id, MouseDown);
    EXPECT_EQ(down.types, (std::vector<VARTYPE> { ShortByRef, ShortByRef, SingleByRef, SingleByRef }));
    EXPECT_EQ(down.values, (std::vector<double> { 2, 1, 150.0, 75.5 }));
    command.Input().OnDblClick();
    EXPECT_EQ(sink->Ids().back(), DblClick);
    EXPECT_TRUE(sink->Events().back().types.empty());
}

TEST_F(CommandEvents, KeyEventsCarryShortsByReference)
{
    int16_t keyCode = 65, shift = 2, keyAscii = 97;
    command.Input().OnKeyDown(keyCode, shift);
    command.Input().OnKeyPress(keyAscii);
    command.Input().OnKeyUp(keyCode, shift);
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { KeyDown, KeyPress, KeyUp }));
    EXPECT_EQ(sink->Events()[0].types, (std::vector<VARTYPE> { ShortByRef, ShortByRef }));
    EXPECT_EQ(sink->Events()[0].values, (std::vector<double> { 65, 2 }));
    EXPECT_EQ(sink->Events()[1].values, (std::vector<double> { 97 }));
}

TEST_F(CommandEvents, ChangesTheSinkMakesToByReferenceArgumentsReachTheControl)
{
    sink->OnEvent([](DISPID id, const std::vector<VARIANT*>& arguments) {
        if (id == KeyPress)
            *V_I2REF(arguments[0]) = 0; // KeyAscii = 0 swallows the key
        if (id == KeyDown) {
            *V_I2REF(arguments[0]) = 13;
            *V_I2REF(arguments[1]) = 4;
        }
    });
    int16_t keyAscii = 97;
    command.Input().OnKeyPress(keyAscii);
    EXPECT_EQ(keyAscii, 0);
    int16_t keyCode = 65, shift = 0;
    command.Input().OnKeyDown(keyCode, shift);
    EXPECT_EQ(keyCode, 13);
    EXPECT_EQ(shift, 4);
}

TEST_F(CommandEvents, EveryConnectedSinkHearsAndAnUnadvisedOneDoesNot)
{
    auto second = ComPtr<EventSink>::Adopt(new EventSink(*TolvaCommandClass.eventIid));
    DWORD cookie = Advise(command.Unknown(), *TolvaCommandClass.eventIid, second.Get());
    command.Input().OnDblClick();
    EXPECT_EQ(second->Events().size(), 1u);

    auto container = command.As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(container->FindConnectionPoint(*TolvaCommandClass.eventIid, point.Put()), S_OK);
    EXPECT_EQ(point->Unadvise(cookie), S_OK);
    EXPECT_EQ(point->Unadvise(cookie), CONNECT_E_NOCONNECTION);
    command.Input().OnDblClick();
    EXPECT_EQ(second->Events().size(), 1u);
    EXPECT_EQ(sink->Events().size(), 2u);
}

TEST_F(CommandEvents, SinkMayCallBackIntoTheControlAndUnadviseDuringAnEvent)
{
    auto container = command.As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    ComPtr<IConnectionPoint> point;
    container->FindConnectionPoint(*TolvaCommandClass.eventIid, point.Put());
    auto reentrant = ComPtr<EventSink>::Adopt(new EventSink(*TolvaCommandClass.eventIid));
    DWORD cookie = 0;
    point->Advise(reentrant.Get(), &cookie);
    IDispatch* d = command.Dispatch();
    reentrant->OnEvent([&](DISPID id, const std::vector<VARIANT*>&) {
        if (id != Click)
            return;
        OleVariant caption;
        Get(d, L"Caption", caption);
        Put(d, L"Caption", Text((AsText(caption) + L"!").c_str()));
        point->Unadvise(cookie);
    });
    command.Input().OnMouseDown(1, 0, 0, 0);
    command.Input().OnMouseUp(1, 0, 0, 0);
    command.Input().OnMouseDown(1, 0, 0, 0);
    command.Input().OnMouseUp(1, 0, 0, 0);
    EXPECT_EQ(command.Control().Caption(), u"TolvaCommand1!");
    EXPECT_EQ(reentrant->Ids(), (std::vector<DISPID> { MouseDown, Click }));
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { MouseDown, Click, MouseUp, MouseDown, Click, MouseUp }));
}

TEST_F(CommandEvents, SinkMayReleaseTheLastClientReferenceDuringAnEvent)
{
    const long objectsBefore = Module::ObjectCount();
    {
        // The window delivering the input holds the object while it does.
        ComPtr<IUnknown> delivering(command.Unknown());
        SurfaceListener& input = command.Input();
        sink->OnEvent([&](DISPID id, const std::vector<VARIANT*>&) {
            if (id == Click)
                command.Release();
        });
        input.OnMouseDown(1, 0, 0, 0);
        input.OnMouseUp(1, 0, 0, 0);
        EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { MouseDown, Click, MouseUp }));
    }
    EXPECT_LT(Module::ObjectCount(), objectsBefore);
}

TEST_F(CommandEvents, ConnectionsAndPointsCanBeEnumerated)
{
    auto container = command.As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    ComPtr<IEnumConnectionPoints> points;
    ASSERT_EQ(container->EnumConnectionPoints(points.Put()), S_OK);
    IConnectionPoint* found[3] = {};
    ULONG fetched = 0;
    EXPECT_EQ(points->Next(3, found, &fetched), S_FALSE);
    ASSERT_EQ(fetched, 2u);
    IID iids[2];
    for (int i = 0; i < 2; ++i) {
        found[i]->GetConnectionInterface(&iids[i]);
        found[i]->Release();
    }
    EXPECT_EQ(iids[0], *TolvaCommandClass.eventIid);
    EXPECT_EQ(iids[1], IID_IPropertyNotifySink);

    ComPtr<IConnectionPoint> point;
    container->FindConnectionPoint(*TolvaCommandClass.eventIid, point.Put());
    ComPtr<IEnumConnections> connections;
    ASSERT_EQ(point->EnumConnections(connections.Put()), S_OK);
    CONNECTDATA data = {};
    ASSERT_EQ(connections->Next(1, &data, nullptr), S_OK);
    EXPECT_NE(data.dwCookie, 0u);
    data.pUnk->Release();
    EXPECT_EQ(connections->Next(1, &data, nullptr), S_FALSE);
}

TEST_F(CommandEvents, ObjectsThatAreNoSinkAreRefused)
{
    auto container = command.As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    ComPtr<IConnectionPoint> point;
    container->FindConnectionPoint(IID_IPropertyNotifySink, point.Put());
    DWORD cookie = 0;
    EXPECT_EQ(point->Advise(sink.Get(), &cookie), CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, point.Put()), CONNECT_E_NOCONNECTION);
}

} // namespace
} // namespace tolva::win32::test
