#pragma once
#include "core/string.h"
#include "core/surface.h"
#include "core/text_box.h"
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace tolva {

// Where a field sits on its page, in twips.
struct FieldPlace {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
};

// What the platform shows for a field: told to show the field's value again after code set it.
class FieldView {
public:
    virtual void ValueChanged() = 0;

protected:
    ~FieldView() = default;
};

// A check box as code sees it: Value 0 unchecked, 1 checked, 2 grey. Code that sets the value
// raises nothing; the user's click toggles it and is reported to the page.
class CheckBox {
public:
    CheckBox(String caption, FieldPlace place, std::function<void()> onClick);

    const String& Caption() const { return m_caption; }
    const FieldPlace& Place() const { return m_place; }
    int16_t Value() const { return m_value; }
    void SetValue(int16_t value);
    void Click(); // checked becomes unchecked, anything else checked
    void SetView(FieldView* view) { m_view = view; }

private:
    String m_caption;
    FieldPlace m_place;
    int16_t m_value = 0;
    std::function<void()> m_onClick;
    FieldView* m_view = nullptr;
};

// A group of option buttons, indexed from 0; at most one has Value True. The index of a button is
// the enumeration value it stands for.
class OptionGroup {
public:
    struct Button {
        String caption;
        FieldPlace place;
    };
    OptionGroup(std::vector<Button> buttons, std::function<void()> onClick);

    const std::vector<Button>& Buttons() const { return m_buttons; }
    bool Value(size_t index) const { return m_selected == int32_t(index); }
    void SetValue(size_t index); // True on that button, False on the others; out of range clears all
    int32_t Selected() const { return m_selected; } // -1 when none is set
    void Click(size_t index);
    void SetView(FieldView* view) { m_view = view; }

private:
    std::vector<Button> m_buttons;
    int32_t m_selected = -1;
    std::function<void()> m_onClick;
    FieldView* m_view = nullptr;
};

// The platform's text box as a page field: its Change goes to the page.
class PageTextBox final : private TextBoxListener {
public:
    PageTextBox(Surface& page, FieldPlace place, std::function<void()> onChange);
    ~PageTextBox();

    TextBox& operator*() { return *m_box; }
    TextBox* operator->() { return m_box.get(); }
    String Text() const { return m_box->Text(); }
    void SetText(StringView text) { m_box->SetText(text); }
    // Selects the whole text and takes the focus, ready to be typed over.
    void SelectAllAndFocus();
    // From now on, gaining the focus selects the whole text.
    void SelectAllOnFocus() { m_selectsAllOnFocus = true; }

private:
    void OnChange() override;
    void OnGotFocus() override;
    void SelectAll();

    std::unique_ptr<TextBox> m_box;
    std::function<void()> m_onChange;
    bool m_selectsAllOnFocus = false;
};

} // namespace tolva
