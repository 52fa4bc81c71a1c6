#pragma once
#include "controls/input/tolva_input.h"
#include "core/automation_error.h"
#include "core/format/formatter.h"
#include "core/input_popups.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/headless_text_box.h"
#include "platform/headless/test_site.h"
#include "tests/unit/support/mouse_event_log.h"
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tolva::testing {

// A formatter whose answers show which format was asked for: Format(v, f) is "f(v)", the value
// converted as the language converts it to text, and the bare conversion when f is empty. Text
// is read as the language coerces it; dates are "mm/dd/yyyy".
class TaggingFormatter final : public Formatter {
public:
    String Format(const Variant& value, StringView format) override
    {
        const String text = value.ToString();
        return format.empty() ? text : String(format) + u"(" + text + u")";
    }
    Currency TextToCurrency(StringView text) override { return Variant(String(text)).ToCurrency(); }
    OleDate TextToDate(StringView text) override
    {
        if (!IsDate(text))
            throw AutomationError::RunTime(RunTimeError::TypeMismatch);
        const auto number = [&](size_t at, size_t length) { return std::stoi(ToUtf8(text.substr(at, length))); };
        return OleDate::FromYmd(number(6, 4), number(0, 2), number(3, 2));
    }
    bool IsDate(StringView text) override
    {
        return text.size() == 10 && text[2] == u'/' && text[5] == u'/'
            && std::all_of(text.begin(), text.end(), [](char16_t c) { return c == u'/' || (c >= u'0' && c <= u'9'); });
    }
    bool IsNumeric(StringView text) override
    {
        try {
            Variant(String(text)).ToDouble();
            return true;
        } catch (const AutomationError&) {
            return false;
        }
    }
    OleDate Today() override { return today; }

    OleDate today = OleDate::FromYmd(2026, 3, 15);
};

// A pop-up that writes what it is asked into a shared log ("Calendar Setup") and answers what
// its fields hold.
template <class Base> class RecordingPopup : public Base {
public:
    explicit RecordingPopup(std::vector<std::string>& log)
        : m_log(log)
    { }

    void Load() override { Note("Load"); }
    void Unload() override
    {
        Note("Unload");
        visible = false;
        parent = nullptr;
    }
    PopupOwner* Parent() const override { return parent; }
    void SetParent(PopupOwner* owner) override
    {
        Note("SetParent");
        parent = owner;
    }
    float Width() const override { return width; }
    float Height() const override { return height; }
    void Resize(float w, float h) override
    {
        Note("Resize " + std::to_string(int(w)) + " " + std::to_string(int(h)));
        width = w;
        height = h;
    }
    void Move(float l, float t) override
    {
        Note("Move " + std::to_string(int(l)) + " " + std::to_string(int(t)));
        left = l;
        top = t;
    }
    void Setup() override { Note("Setup"); }
    void Show() override
    {
        Note("Show");
        visible = true;
    }
    void Hide() override
    {
        Note("Hide");
        visible = false;
    }
    bool Visible() const override { return visible; }

    PopupOwner* parent = nullptr;
    float width = 3000;
    float height = 2400;
    float left = 0;
    float top = 0;
    bool visible = false;

protected:
    void Note(const std::string& what)
    {
        static const char* names[] = { "Calendar", "Calculator", "List" };
        m_log.push_back(std::string(names[int(this->Kind())]) + " " + what);
    }

private:
    std::vector<std::string>& m_log;
};

class RecordingCalendar final : public RecordingPopup<CalendarPopup> {
public:
    using RecordingPopup::RecordingPopup;
    OleDate Date() const override { return date; }
    void SetDate(OleDate d) override
    {
        Note("SetDate " + std::to_string(int(d.Serial())));
        date = d;
    }
    OleDate CurrentDate() const override { return currentDate; }
    void SetCurrentDate(OleDate d) override
    {
        Note("SetCurrentDate " + std::to_string(int(d.Serial())));
        currentDate = d;
    }
    OleDate date;
    OleDate currentDate;
};

class RecordingCalculator final : public RecordingPopup<CalculatorPopup> {
public:
    using RecordingPopup::RecordingPopup;
};

class RecordingList final : public RecordingPopup<ListPopup> {
public:
    using RecordingPopup::RecordingPopup;
    void SetList(const ListBox* items) override
    {
        Note(items ? "SetList" : "SetList none");
        list = items;
    }
    int32_t TopIndex() override { return topIndex; }
    void SetTopIndex(int32_t index) override
    {
        Note("SetTopIndex " + std::to_string(index));
        topIndex = index;
    }
    void SetScrollBarVisible(bool visible) override { Note(visible ? "ScrollBar shown" : "ScrollBar hidden"); }
    void SetSelectedItem(int32_t item) override { Note("SetSelectedItem " + std::to_string(item)); }
    const ListBox* list = nullptr;
    int32_t topIndex = 0;
};

// Makes the recording pop-ups, once each, all logging into log.
class RecordingPopupFactory final : public PopupFactory {
public:
    std::unique_ptr<InputPopup> Create(PopupKind kind) override
    {
        switch (kind) {
        case PopupKind::Calendar:
            return std::unique_ptr<InputPopup>(calendar = new RecordingCalendar(log));
        case PopupKind::Calculator:
            return std::unique_ptr<InputPopup>(calculator = new RecordingCalculator(log));
        case PopupKind::List:
            return std::unique_ptr<InputPopup>(list = new RecordingList(log));
        }
        return nullptr;
    }

    std::vector<std::string> log;
    RecordingCalendar* calendar = nullptr;
    RecordingCalculator* calculator = nullptr;
    RecordingList* list = nullptr;
};

// Records the control's events as text; keyPress, when set, runs inside KeyPress and may
// change KeyAscii as a host's event code would.
class InputEventLog final : public KeyAndMouseEventLog<TolvaInputEvents> {
public:
    void Change() override { Record("Change"); }
    void KeyPress(int16_t& k) override
    {
        KeyAndMouseEventLog::KeyPress(k);
        if (keyPress)
            keyPress(k);
    }

    std::function<void(int16_t&)> keyPress;
};

// A new input 1500 x 285 twips at run time with the sunken edge: an inner area of 96 x 15
// pixels, the text box 84 pixels wide beside the button strip once a drop-down style is set.
// The control's client area starts at (150, 300) on a 1024 x 768 screen.
class InputTest : public ::testing::Test {
protected:
    InputTest()
    {
        site.formatting = &formatter;
        site.popups = &popups;
        surface.SetScreenOrigin({ 150, 300 });
        surface.Resize(1500, 285);
        input.InitProperties();
        input.SetEventListener(&events);
        surface.Paint();
        site.propertyChanges.clear();
    }

    headless::HeadlessTextBox& Box() { return static_cast<headless::HeadlessTextBox&>(input.TextInput()); }
    void Callback(std::u16string param, Currency value = {})
    {
        input.PopupWindowCallback(param, value);
    }
    void AddItems(std::initializer_list<const char16_t*> items)
    {
        for (const char16_t* item : items)
            input.AddItem(item);
    }

    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    TaggingFormatter formatter;
    RecordingPopupFactory factory;
    InputPopups popups { factory };
    TolvaInput input { surface, site };
    InputEventLog events;
};

} // namespace tolva::testing
