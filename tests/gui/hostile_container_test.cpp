// Every control in Wine's ATL container, driven with window messages and timers, while its sinks
// turn against it from inside each event and property notification: dropping the client's
// references, unadvising, setting every property and calling every method, and destroying the
// container window (which then holds the last reference). Nothing may crash; a control still
// there answers afterwards.
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/font_conversion.h"
#include "platform/win32/com/type_library.h"
#include "tests/gui/atl_hosted.h"
#include "tests/win32/support/every_control.h"
#include "tests/win32/support/notify_sink.h"
#include "tests/win32/support/type_info_reading.h"
#include <functional>
#include <set>
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

enum class Behaviour { DropClient, Unadvise, Reenter, DestroyContainer };
constexpr Behaviour Behaviours[] = { Behaviour::DropClient, Behaviour::Unadvise, Behaviour::Reenter,
    Behaviour::DestroyContainer };

// The call-out a sink turns against the control.
struct Target {
    enum Kind { Event, AnyEvent, Notification } kind;
    DISPID id = DISPID_UNKNOWN;
};

// The control's window and all the windows inside it.
std::vector<HWND> WindowsOf(HWND window)
{
    std::vector<HWND> windows = ChildWindows(window);
    windows.insert(windows.begin(), window);
    return windows;
}

// Reads every property and assigns it again, and calls every method but the modal about box,
// until gone says the control went meanwhile.
void UseEveryMember(IDispatch* control, const ControlClass& controlClass,
    const std::function<bool()>& gone = [] { return false; })
{
    for (const DispatchMember& member : controlClass.members) {
        if (!member.parameters.empty() || member.id == DISPID_ABOUTBOX)
            continue;
        if (gone())
            return;
        VARIANT value;
        VariantInit(&value);
        DISPPARAMS none = {};
        control->Invoke(member.id, IID_NULL, 0, DISPATCH_PROPERTYGET | DISPATCH_METHOD, &none, &value, nullptr, nullptr);
        if (!member.isMethod && V_VT(&value) != VT_EMPTY) {
            // The value it has, assigned again: reported, repainted, raised.
            DISPID named = DISPID_PROPERTYPUT;
            DISPPARAMS put = { &value, &named, 1, 1 };
            control->Invoke(member.id, IID_NULL, 0, member.set ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, &put,
                nullptr, nullptr, nullptr);
        }
        VariantClear(&value);
    }
}

// Closes whatever menu is open: a right click on a text box opens its context menu, whose modal
// loop would otherwise wait for a user.
void CALLBACK CloseMenus(HWND, UINT, UINT_PTR, DWORD)
{
    EndMenu();
}

class HostileContainer : public AtlHosted, public testing::WithParamInterface<const ControlClass*> {
protected:
    const ControlClass& Class() const { return *GetParam(); }

    std::vector<Target> Targets() const
    {
        std::vector<Target> targets = { { Target::AnyEvent }, { Target::Notification } };
        ForEachFunction(TypeLibrary::InfoOf(*Class().eventIid).Get(),
            [&targets](const FUNCDESC& f) { targets.push_back({ Target::Event, f.memid }); });
        return targets;
    }

    // Hosts a new control whose sinks turn behaviour against it at target and drives it;
    // returns whether the sink acted.
    bool Run(Behaviour behaviour, const Target& target)
    {
        Host(Class().ProgId().c_str(), *Class().eventIid, 10, 10, 120, 60);
        if (HasFatalFailure())
            return false;
        auto events = ComPtr<EventSink>::Adopt(new EventSink(*Class().eventIid));
        auto notifications = ComPtr<NotifySink>::Adopt(new NotifySink);
        const DWORD eventCookie = Advise(control.Get(), *Class().eventIid, events.Get());
        const DWORD notifyCookie = Advise(control.Get(), IID_IPropertyNotifySink, notifications.Get());
        IDispatch* raw = dispatch.Get(); // valid while the container holds the control
        bool acted = false;
        auto act = [&] {
            if (acted)
                return;
            acted = true;
            switch (behaviour) {
            case Behaviour::DropClient:
                dispatch.Reset();
                control.Reset();
                break;
            case Behaviour::Unadvise: {
                auto points = ComPtr<IDispatch>(raw).As<IConnectionPointContainer>(IID_IConnectionPointContainer);
                ComPtr<IConnectionPoint> point;
                const bool notification = target.kind == Target::Notification;
                points->FindConnectionPoint(notification ? IID_IPropertyNotifySink : *Class().eventIid, point.Put());
                point->Unadvise(notification ? notifyCookie : eventCookie);
                break;
            }
            case Behaviour::Reenter:
                UseEveryMember(raw, Class());
                break;
            case Behaviour::DestroyContainer:
                dispatch.Reset();
                control.Reset();
                DestroyWindow(container);
                break;
            }
        };
        events->OnEvent([&](DISPID id, const std::vector<VARIANT*>&) {
            if (target.kind == Target::AnyEvent || (target.kind == Target::Event && id == target.id))
                act();
        });
        notifications->OnNotification([&](DISPID, bool) {
            if (target.kind == Target::Notification)
                act();
        });
        const UINT_PTR menuCloser = SetTimer(nullptr, 0, 100, CloseMenus);
        for (HWND w : WindowsOf(window)) {
            for (UINT message : { WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP, WM_RBUTTONDOWN,
                     WM_RBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP }) {
                if (IsWindow(w))
                    SendMessageW(w, message, message == WM_LBUTTONDOWN ? MK_LBUTTON : 0, MAKELPARAM(5, 5));
            }
        }
        if (IsWindow(window)) {
            SetFocus(window);
            for (WPARAM key : { WPARAM(VK_SPACE), WPARAM(VK_RETURN), WPARAM('A') }) {
                if (IsWindow(window))
                    SendMessageW(window, WM_KEYDOWN, key, 0);
                if (IsWindow(window))
                    SendMessageW(window, WM_CHAR, key, 0);
                if (IsWindow(window))
                    SendMessageW(window, WM_KEYUP, key, 0);
            }
        }
        // A part held down long enough for a repeating control's timer to tick.
        if (target.kind == Target::AnyEvent) {
            std::vector<HWND> parts = WindowsOf(window);
            HWND pressed = parts.size() > 1 ? parts[1] : window;
            if (IsWindow(pressed)) {
                SendMessageW(pressed, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
                PumpFor(600);
                if (IsWindow(pressed))
                    SendMessageW(pressed, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
            }
        }
        if (dispatch)
            UseEveryMember(dispatch.Get(), Class(), [&] { return behaviour == Behaviour::DestroyContainer && acted; });
        PumpFor(20);
        KillTimer(nullptr, menuCloser);
        // A control still there answers afterwards.
        if (behaviour == Behaviour::Unadvise || behaviour == Behaviour::Reenter) {
            EXPECT_TRUE(dispatch);
            if (dispatch)
                ExpectEveryPropertyReads(dispatch.Get(), Class());
        }
        return acted;
    }
};

TEST_P(HostileContainer, NoSinkCanCrashTheControl)
{
    std::set<std::pair<int, int>> reached; // behaviour and target kind
    for (Behaviour behaviour : Behaviours) {
        for (const Target& target : Targets()) {
            SCOPED_TRACE(testing::Message() << "behaviour " << int(behaviour) << " target " << int(target.kind) << " "
                                            << target.id);
            if (Run(behaviour, target))
                reached.insert({ int(behaviour), int(target.kind) });
            TearDown();
            container = window = nullptr;
            control.Reset();
            dispatch.Reset();
            sink.Reset();
        }
    }
    // Every sink acted inside an event and inside a notification at least once.
    for (Behaviour behaviour : Behaviours) {
        EXPECT_TRUE(reached.count({ int(behaviour), int(Target::AnyEvent) })) << int(behaviour);
        EXPECT_TRUE(reached.count({ int(behaviour), int(Target::Notification) })) << int(behaviour);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryControl, HostileContainer, testing::ValuesIn(ControlClasses()), ClassName);

} // namespace
} // namespace tolva::win32::test
