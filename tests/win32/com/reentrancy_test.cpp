// Call-outs a client turns against the control. For every event and property notification of
// every control class: a sink that releases the last reference to the control, one that
// unadvises itself, one that sets every property and calls every method of the same control,
// and one that writes the ends of their types into the by-reference arguments of events, each
// inside that call-out. The control is driven by input, assignments, method calls with
// arguments (the pop-up protocol's answers among them), its font object, loading and ambient
// changes. Nothing may crash or run on a freed control (the test
// programs poison freed memory), and a control still held answers afterwards. The same with
// real windows, and a sink that destroys the container, is in the GUI suite.
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_object.h"
#include "platform/win32/com/font_conversion.h"
#include "platform/win32/com/type_library.h"
#include "platform/win32/windowless/windowless_surface.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/every_control.h"
#include "tests/win32/support/notify_sink.h"
#include "tests/win32/support/type_info_reading.h"
#include <gtest/gtest.h>
#include <cfloat>
#include <climits>
#include <cmath>
#include <olectl.h>
#include <set>

namespace tolva::win32::test {
namespace {

enum class Behaviour { ReleaseControl, Unadvise, Reenter, RewriteArguments };

// The call-out a sink turns against the control: an event by its id, or a notification.
struct Target {
    bool notification;
    DISPID id; // the event's; any notification when notification is true
};

// A value of type: text is text, a number (or a font's size above 9 points) is number.
VARIANT ValueOf(OleType type, const wchar_t* text, int number)
{
    VARIANT v;
    VariantInit(&v);
    switch (type) {
    case OleType::Bool:
        V_VT(&v) = VT_BOOL;
        V_BOOL(&v) = number % 2 ? VARIANT_TRUE : VARIANT_FALSE;
        break;
    case OleType::Int16:
        V_VT(&v) = VT_I2;
        V_I2(&v) = SHORT(number);
        break;
    case OleType::Currency:
        V_VT(&v) = VT_CY;
        V_CY(&v).int64 = LONGLONG(number) * 10000;
        break;
    case OleType::String:
        V_VT(&v) = VT_BSTR;
        V_BSTR(&v) = SysAllocString(text);
        break;
    case OleType::Font: {
        Font font;
        font.size = 9 + number;
        V_VT(&v) = VT_DISPATCH;
        V_DISPATCH(&v) = CreateStdFont(font).As<IDispatch>(IID_IDispatch).Detach();
        break;
    }
    default:
        V_VT(&v) = VT_I4;
        V_I4(&v) = number;
        break;
    }
    return v;
}

// The words the pop-ups answer with, and texts and numbers at the edges, for methods' arguments.
const wchar_t* const Words[] = { L"", L"SELECT", L"CANCEL", L"C", L"#", L"+", L"-", L"*", L"/", L"=", L"B", L"S",
    L".", L"&Item" };

// An argument of type for a method: text is word, a number is number. by reference, the
// variant refers to storage, which must outlive the call.
VARIANT Argument(const TypeSpec& type, const wchar_t* word, int number, VARIANT& storage)
{
    storage = ValueOf(type.type, word, number);
    if (!type.byReference)
        return storage;
    VARIANT reference;
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &storage;
    return reference;
}

// Calls every method that takes arguments with each of the words and numbers, after setting
// every enumerated property to each of its first values (a style decides which pop-up answers),
// until gone says the control was released meanwhile.
void CallEveryMethodWithArguments(IDispatch* control, const ControlClass& controlClass,
    const std::function<bool()>& gone)
{
    for (LONG choice = 0; choice < 4; ++choice) {
        for (const DispatchMember& member : controlClass.members) {
            if (member.isMethod || !member.parameters.empty() || !member.type.enumName || !member.let || gone())
                continue;
            VARIANT value;
            V_VT(&value) = VT_I4;
            V_I4(&value) = choice;
            DISPID named = DISPID_PROPERTYPUT;
            DISPPARAMS put = { &value, &named, 1, 1 };
            control->Invoke(member.id, IID_NULL, 0, DISPATCH_PROPERTYPUT, &put, nullptr, nullptr, nullptr);
        }
        for (const DispatchMember& member : controlClass.members) {
            if (!member.isMethod || member.parameters.empty())
                continue;
            for (size_t word = 0; word < std::size(Words); ++word) {
                if (gone())
                    return;
                const size_t count = member.parameters.size();
                std::vector<VARIANT> storage(count), arguments(count);
                for (size_t i = 0; i < count; ++i)
                    arguments[count - 1 - i] = Argument(member.parameters[i], Words[word], int(word % 4), storage[i]);
                DISPPARAMS params = { arguments.data(), nullptr, UINT(count), 0 };
                VARIANT result;
                VariantInit(&result);
                control->Invoke(member.id, IID_NULL, 0, DISPATCH_METHOD, &params, &result, nullptr, nullptr);
                VariantClear(&result);
                for (VARIANT& v : storage)
                    VariantClear(&v);
            }
        }
    }
}

// Writes the ends of their types into an event's by-reference arguments, as a handler may:
// the control goes on with what it finds there.
void RewriteByReference(const std::vector<VARIANT*>& arguments, int round)
{
    for (VARIANT* v : arguments) {
        if (!(V_VT(v) & VT_BYREF) || !V_BYREF(v))
            continue;
        switch (V_VT(v) & ~VT_BYREF) {
        case VT_I2:
            *V_I2REF(v) = round % 3 == 0 ? SHORT(SHRT_MIN) : round % 3 == 1 ? SHORT(SHRT_MAX) : SHORT(-1);
            break;
        case VT_I4:
            *V_I4REF(v) = round % 2 ? LONG(INT_MIN) : LONG(INT_MAX);
            break;
        case VT_R4:
            *V_R4REF(v) = round % 3 == 0 ? NAN : round % 3 == 1 ? HUGE_VALF : -FLT_MAX;
            break;
        case VT_BOOL:
            *V_BOOLREF(v) = VARIANT_BOOL(0x1234);
            break;
        default:
            break;
        }
    }
}

// Sets every property of control and calls every method, as a handler may, until gone says
// the control was released meanwhile.
void UseEveryMember(IDispatch* control, const ControlClass& controlClass, int round,
    const std::function<bool()>& gone = [] { return false; })
{
    for (const DispatchMember& member : controlClass.members) {
        if (!member.parameters.empty())
            continue;
        if (gone())
            return;
        VARIANT value = ValueOf(member.type.type, round % 2 ? L"&Again" : L"Re&entered", round * 7);
        DISPID named = DISPID_PROPERTYPUT;
        DISPPARAMS put = { &value, &named, 1, 1 };
        DISPPARAMS none = {};
        VARIANT result;
        VariantInit(&result);
        if (member.isMethod)
            control->Invoke(member.id, IID_NULL, 0, DISPATCH_METHOD, &none, &result, nullptr, nullptr);
        else
            control->Invoke(member.id, IID_NULL, 0, member.set ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, &put,
                nullptr, nullptr, nullptr);
        VariantClear(&result);
        VariantClear(&value);
    }
}

class Reentrancy : public testing::TestWithParam<const ControlClass*> {
protected:
    const ControlClass& Class() const { return *GetParam(); }

    std::vector<Target> Targets() const
    {
        std::vector<Target> targets = { { true, DISPID_UNKNOWN } };
        ForEachFunction(TypeLibrary::InfoOf(*Class().eventIid).Get(),
            [&targets](const FUNCDESC& f) { targets.push_back({ false, f.memid }); });
        return targets;
    }

    // One way into the control that ends in call-outs, from the client's side.
    struct Stimulus {
        const char* name;
        std::function<void(ControlObject& object, IDispatch* control, const std::function<bool()>& gone)> run;
    };

    // Everything that calls out: input as the control's window delivers it (holding the
    // object, as the window does), assignments and method calls, the font object, loading, an
    // ambient change. Each stops once gone() says the control was released.
    std::vector<Stimulus> Stimuli() const
    {
        auto asWindow = [](std::function<void(SurfaceListener&)> input) {
            return [input](ControlObject& object, IDispatch*, const std::function<bool()>&) {
                ComPtr<IUnknown> keepAlive(&object);
                // Every control's surface is a window surface, a windowless one until in place.
                input(*static_cast<WindowlessSurface&>(object.ControlSurface()).Listener());
            };
        };
        const ControlClass& controlClass = Class();
        return {
            { "left click", asWindow([](SurfaceListener& l) {
                 l.OnMouseMove(0, 0, 30, 30);
                 l.OnMouseDown(1, 0, 30, 30);
                 l.OnMouseMove(1, 0, 40, 40);
                 l.OnMouseUp(1, 0, 30, 30);
             }) },
            { "right click", asWindow([](SurfaceListener& l) {
                 l.OnMouseDown(2, 1, 30, 30);
                 l.OnMouseUp(2, 1, 30, 30);
             }) },
            { "double click", asWindow([](SurfaceListener& l) { l.OnDblClick(); }) },
            { "keys", asWindow([](SurfaceListener& l) {
                 int16_t space = 32, enter = 13, shift = 0, ascii = 97;
                 l.OnKeyDown(space, shift);
                 l.OnKeyUp(space, shift);
                 l.OnKeyDown(enter, shift);
                 l.OnKeyPress(ascii);
                 l.OnKeyUp(enter, shift);
             }) },
            { "access key", asWindow([](SurfaceListener& l) { l.OnAccessKeyPress(u'a'); }) },
            { "focus", asWindow([](SurfaceListener& l) {
                 l.OnGotFocus();
                 l.OnLostFocus();
             }) },
            { "assignments and methods",
                [&controlClass](ControlObject&, IDispatch* control, const std::function<bool()>& gone) {
                    UseEveryMember(control, controlClass, 1, gone);
                } },
            { "methods with arguments",
                [&controlClass](ControlObject&, IDispatch* control, const std::function<bool()>& gone) {
                    CallEveryMethodWithArguments(control, controlClass, gone);
                } },
            { "font object", [this](ControlObject&, IDispatch* control, const std::function<bool()>&) {
                 ChangeLiveFont(control);
             } },
            { "loading", [this](ControlObject&, IDispatch* control, const std::function<bool()>& gone) {
                 LoadSaved(control, gone);
             } },
            { "ambient change", [](ControlObject&, IDispatch* control, const std::function<bool()>&) {
                 IOleControl* unheld = ComPtr<IDispatch>(control).As<IOleControl>(IID_IOleControl).Get();
                 unheld->OnAmbientPropertyChange(DISPID_UNKNOWN);
             } },
        };
    }

    // Runs stimulus against a new control whose sinks turn behaviour against it at target;
    // returns whether the sink acted.
    bool Run(Behaviour behaviour, const Target& target, const Stimulus& stimulus)
    {
        ComPtr<IUnknown> object = ControlObject::Create(Class());
        ControlObject* raw = static_cast<ControlObject*>(object.Get());
        IDispatch* control = object.As<IDispatch>(IID_IDispatch).Get(); // held by object
        auto events = ComPtr<EventSink>::Adopt(new EventSink(*Class().eventIid));
        auto notifications = ComPtr<NotifySink>::Adopt(new NotifySink);
        DWORD eventCookie = Advise(object.Get(), *Class().eventIid, events.Get());
        DWORD notifyCookie = Advise(object.Get(), IID_IPropertyNotifySink, notifications.Get());
        EXPECT_NE(eventCookie, 0u);
        EXPECT_NE(notifyCookie, 0u);

        // The sink holds the only reference when it is to release it: the client then calls
        // through a pointer it no longer holds, as a script engine's cached pointer would.
        ComPtr<IUnknown> heldBySink;
        if (behaviour == Behaviour::ReleaseControl)
            heldBySink = std::move(object);
        bool acted = false;
        int rewrites = 0;
        auto act = [&](const std::vector<VARIANT*>& arguments) {
            if (behaviour == Behaviour::RewriteArguments) {
                RewriteByReference(arguments, rewrites++);
                acted = true;
                return;
            }
            if (acted)
                return;
            acted = true;
            switch (behaviour) {
            case Behaviour::ReleaseControl:
                heldBySink.Reset();
                break;
            case Behaviour::Unadvise: {
                auto container = ComPtr<IDispatch>(control).As<IConnectionPointContainer>(IID_IConnectionPointContainer);
                ComPtr<IConnectionPoint> point;
                container->FindConnectionPoint(target.notification ? IID_IPropertyNotifySink : *Class().eventIid,
                    point.Put());
                point->Unadvise(target.notification ? notifyCookie : eventCookie);
                break;
            }
            case Behaviour::Reenter:
                UseEveryMember(control, Class(), 2);
                break;
            case Behaviour::RewriteArguments:
                break;
            }
        };
        events->OnEvent([&](DISPID id, const std::vector<VARIANT*>& arguments) {
            if (!target.notification && id == target.id)
                act(arguments);
        });
        notifications->OnNotification([&](DISPID, bool) {
            if (target.notification)
                act({});
        });

        stimulus.run(*raw, control, [&] { return behaviour == Behaviour::ReleaseControl && acted; });
        if (behaviour == Behaviour::ReleaseControl && !acted)
            heldBySink.Reset();
        if (behaviour != Behaviour::ReleaseControl)
            ExpectEveryPropertyReads(object.As<IDispatch>(IID_IDispatch).Get(), Class());
        return acted;
    }

    // ctl.Font.Bold = True: the change reaches the control through the font's own notification.
    void ChangeLiveFont(IDispatch* control) const
    {
        for (const DispatchMember& member : Class().members) {
            if (member.type.type != OleType::Font)
                continue;
            VARIANT value;
            VariantInit(&value);
            DISPPARAMS none = {};
            control->Invoke(member.id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr);
            ComPtr<IFont> font = FontOf(value);
            VariantClear(&value);
            if (font)
                font->put_Bold(TRUE); // may release the control: font is ours
            return;
        }
    }

    void LoadSaved(IDispatch* control, const std::function<bool()>& gone) const
    {
        auto persist = ComPtr<IDispatch>(control).As<IPersistStreamInit>(IID_IPersistStreamInit);
        ComPtr<IStream> stream;
        CreateStreamOnHGlobal(nullptr, TRUE, stream.Put());
        UseEveryMember(control, Class(), 1, gone); // something to load that differs
        if (gone())
            return;
        persist->Save(stream.Get(), FALSE);
        persist->InitNew();
        if (gone())
            return;
        const LARGE_INTEGER start = {};
        stream->Seek(start, STREAM_SEEK_SET, nullptr);
        IPersistStreamInit* unheld = persist.Get();
        persist.Reset(); // the control may go while loading; the client calls through its pointer
        unheld->Load(stream.Get());
    }
};

TEST_P(Reentrancy, EveryCallOutSurvivesEverySink)
{
    std::set<std::pair<bool, DISPID>> reached;
    for (Behaviour behaviour :
        { Behaviour::ReleaseControl, Behaviour::Unadvise, Behaviour::Reenter, Behaviour::RewriteArguments }) {
        for (const Target& target : Targets()) {
            for (const Stimulus& stimulus : Stimuli()) {
                SCOPED_TRACE(testing::Message() << "behaviour " << int(behaviour) << ", "
                                                << (target.notification ? "notification" : "event ")
                                                << (target.notification ? 0 : target.id) << ", " << stimulus.name);
                if (Run(behaviour, target, stimulus))
                    reached.insert({ target.notification, target.id });
            }
        }
    }
    // The notifications and some event at least; a scroll bar without windows raises only Change.
    EXPECT_TRUE(reached.count({ true, DISPID_UNKNOWN }));
    EXPECT_GE(reached.size(), 2u);
}

INSTANTIATE_TEST_SUITE_P(EveryControl, Reentrancy, testing::ValuesIn(ControlClasses()), ClassName);

} // namespace
} // namespace tolva::win32::test
