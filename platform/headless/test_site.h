#pragma once
#include "core/control_site.h"
#include "core/format/portable_formatter.h"
#include "core/input_popups.h"
#include "platform/headless/test_parent_form.h"
#include <vector>

namespace tolva::headless {

// A container for tests: answers with the values set in its members and records every call.
// Without a parent form, Parent() is nullptr. Formatting is the portable en-US engine, whose
// today is fixed (TestSite::Today) so that tests do not depend on the clock.
class TestSite : public ControlSite {
public:
    static OleDate Today() { return OleDate::FromYmd(2001, 2, 3); }

    TestSite() { formatter.FixToday(Today()); }

    struct MessageBoxCall {
        String prompt;
        int style = 0;
        bool operator==(const MessageBoxCall&) const = default;
    };

    void PropertyChanged(StringView key) override { propertyChanges.emplace_back(key); }
    Font AmbientFont() override { return ambientFont; }
    bool UserMode() override { return userMode; }
    bool DisplayAsDefault() override { return displayAsDefault; }
    String ExtenderName() override { return extenderName; }
    float ExtenderWidth() override { return extenderWidth; }
    float ExtenderHeight() override { return extenderHeight; }
    ParentForm* Parent() override { return parent; }
    int MessageBox(StringView prompt, int style) override;
    void Beep() override { ++beeps; }
    void ShowAboutBox() override { ++aboutBoxes; }
    Formatter& Formatting() override { return formatting ? *formatting : formatter; }
    InputPopups& Popups() override { return popups ? *popups : m_noPopups; }

    // Answers.
    Font ambientFont;
    bool userMode = true;
    bool displayAsDefault = false;
    String extenderName;
    float extenderWidth = 0;
    float extenderHeight = 0;
    TestParentForm* parent = nullptr;
    int messageBoxAnswer = 1; // OK
    PortableFormatter formatter;
    Formatter* formatting = nullptr; // answers instead of the engine when set (a test's double)
    InputPopups* popups = nullptr; // the thread's pop-ups; none without

    // Records.
    std::vector<String> propertyChanges;
    std::vector<MessageBoxCall> messageBoxes;
    int beeps = 0;
    int aboutBoxes = 0;

private:
    NoPopups m_noFactory;
    InputPopups m_noPopups { m_noFactory };
};

} // namespace tolva::headless
