// A client that lets go of TolvaInput inside the Change event a pop-up's answer raises: the
// pop-up holds its owner until the answer returns, and the owner that then goes leaves no pop-up
// that still calls it. Nothing may run on a freed control (the
// test programs poison freed memory).
#include "controls/input/popups/frm_calculator.h"
#include "controls/input/popups/frm_calendar.h"
#include "controls/input/popups/frm_combo.h"
#include "controls/input/tolva_input_enums.h"
#include "platform/win32/com/control_object.h"
#include "platform/win32/window/thread_popups.h"
#include "platform/win32/windowless/windowless_surface.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include <gtest/gtest.h>
#include <functional>

namespace tolva::win32 {
extern const ControlClass TolvaInputClass;
namespace test {
namespace {

constexpr DISPID ChangeEvent = 1;
constexpr int16_t Escape = 27, Down = 40;

SurfaceListener& ListenerOf(InputPopup& popup)
{
    Surface& window = popup.Kind() == PopupKind::Calendar ? static_cast<frmCalendar&>(popup).Window()
        : popup.Kind() == PopupKind::Calculator         ? static_cast<frmCalculator&>(popup).Window()
                                                        : static_cast<frmCombo&>(popup).Window();
    return *static_cast<WindowlessSurface&>(window).Listener();
}

void KeyPress(SurfaceListener& popup, int16_t key)
{
    popup.OnKeyPress(key);
}

void KeyDown(SurfaceListener& popup, int16_t key)
{
    int16_t shift = 0;
    popup.OnKeyDown(key, shift);
}

void LoseActivation(SurfaceListener& popup)
{
    popup.OnDeactivate(std::nullopt);
}

// An answer of a pop-up, given once the pop-up of style shows over text; each changes the text
// (a calculator opened on "abc" shows "0", and its cancel brings "abc" back).
struct Answer {
    const char* name;
    LONG style;
    PopupKind kind;
    const wchar_t* text;
    std::function<void(SurfaceListener& popup)> give;
};

const Answer Answers[] = {
    { "calendar loses activation", tkInputStyles::tkCalendar, PopupKind::Calendar, L"", LoseActivation },
    { "calendar cancels", tkInputStyles::tkCalendar, PopupKind::Calendar, L"",
        [](SurfaceListener& p) { KeyPress(p, Escape); } },
    { "calculator accepts", tkInputStyles::tkCalculator, PopupKind::Calculator, L"12",
        [](SurfaceListener& p) { KeyPress(p, '='); } },
    { "calculator cancels", tkInputStyles::tkCalculator, PopupKind::Calculator, L"abc",
        [](SurfaceListener& p) { KeyPress(p, Escape); } },
    { "calculator loses activation", tkInputStyles::tkCalculator, PopupKind::Calculator, L"12", LoseActivation },
    { "list selects", tkInputStyles::tkCombo, PopupKind::List, L"zz", [](SurfaceListener& p) { KeyDown(p, Down); } },
    { "list cancels", tkInputStyles::tkCombo, PopupKind::List, L"zz",
        [](SurfaceListener& p) { KeyDown(p, Escape); } },
};

class PopupReentrancy : public testing::TestWithParam<Answer> { };

// The pop-up answers, and a sink releases the last reference to the control at the first
// change the answer makes (its Change event, or a property notification).
TEST_P(PopupReentrancy, TheOwnerReleasedInsideTheAnswerOutlivesItAndIsNotCalledAgain)
{
    const Answer& answer = GetParam();
    ThreadPopups thread; // the pop-ups stay for the checks after the control went
    ComPtr<IUnknown> object = ControlObject::Create(TolvaInputClass);
    auto* raw = static_cast<ControlObject*>(object.Get());
    auto control = object.As<IDispatch>(IID_IDispatch);
    Put(control.Get(), L"Style", Long(answer.style));
    Put(control.Get(), L"FormatString", Text(answer.style == tkInputStyles::tkCalculator ? L"0.00" : L""));
    for (const wchar_t* item : { L"a", L"b" }) {
        OleVariant none;
        Call(control.Get(), IdOf(control.Get(), L"AddItem"), DISPATCH_METHOD, { Text(item) }, none);
    }
    Put(control.Get(), L"Text", Text(answer.text));
    static_cast<WindowlessSurface&>(raw->ControlSurface()).Listener()->OnMouseDown(1, 0, 30, 30);
    InputPopup* popup = thread.Get().Loaded(answer.kind);
    ASSERT_TRUE(popup && popup->Visible());

    auto events = ComPtr<EventSink>::Adopt(new EventSink(*TolvaInputClass.eventIid));
    Advise(object.Get(), *TolvaInputClass.eventIid, events.Get());
    ComPtr<IUnknown> heldBySink = std::move(object);
    control.Reset();
    bool released = false;
    events->OnEvent([&](DISPID id, const std::vector<VARIANT*>&) {
        if (id == ChangeEvent && !released) {
            released = true;
            heldBySink.Reset();
        }
    });

    answer.give(ListenerOf(*popup));
    EXPECT_TRUE(released);
    EXPECT_EQ(popup->Parent(), nullptr);
    EXPECT_FALSE(popup->Visible());
    LoseActivation(ListenerOf(*popup)); // would call a freed owner
}

INSTANTIATE_TEST_SUITE_P(EveryAnswer, PopupReentrancy, testing::ValuesIn(Answers),
    [](const testing::TestParamInfo<Answer>& info) {
        std::string name = info.param.name;
        for (char& c : name)
            if (c == ' ')
                c = '_';
        return name;
    });

} // namespace
} // namespace test
} // namespace tolva::win32
