#pragma once
#include "controls/input/popups/frm_calculator.h"
#include "controls/input/popups/frm_calendar.h"
#include "controls/input/popups/frm_combo.h"
#include "controls/input/popups/popup_forms.h"
#include "controls/input/tolva_input.h"
#include "core/input_popups.h"
#include "platform/headless/headless_popup_windows.h"
#include "platform/headless/test_site.h"
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tolva::testing {

// An owner that writes each callback as "param value" ("SELECT 3", "# 0"; the value left out
// when it is 0 with any other param, so "" for an empty one) and can run code inside it, as TolvaInput unloads pop-ups from there.
class RecordingOwner final : public PopupOwner {
public:
    void PopupWindowCallback(String& param, Currency& value) override
    {
        log.push_back(ToUtf8(param) + (value == Currency() && param != u"#" ? "" : " " + ToUtf8(Variant(value).ToString())));
        if (inside)
            inside(param);
    }
    bool SelectionTracking() const override { return tracking; }
    std::shared_ptr<void> Hold() override { return nullptr; }
    void PopupClosedByPress(PixelPoint) override { }
    String OwnerName() const override { return u"txtOwner"; }

    std::vector<std::string> log;
    std::function<void(const String&)> inside;
    bool tracking = false;
};

// The real pop-up forms of a thread on headless pop-up windows, with an owner of each kind: a
// recording one, and a TolvaInput 1500 x 285 twips whose client area starts at (150, 300).
class PopupTest : public ::testing::Test {
protected:
    PopupTest()
    {
        site.popups = &popups;
        inputSurface.SetScreenOrigin({ 150, 300 });
        inputSurface.Resize(1500, 285);
        input.InitProperties();
    }

    template <class Form> Form& Load() { return static_cast<Form&>(*popups.Load(Form::KindOf)); }
    template <class Form> headless::HeadlessSurface& WindowOf(Form& form)
    {
        return static_cast<headless::HeadlessSurface&>(form.Window());
    }
    static headless::HeadlessSurface& Headless(Surface& surface) { return static_cast<headless::HeadlessSurface&>(surface); }
    // A left click on a part: press and release at its top-left corner.
    static void Click(Surface& part)
    {
        Headless(part).MouseDown(1, 0, 15, 15);
        Headless(part).MouseUp(1, 0, 15, 15);
    }
    void PressDropDown() { inputSurface.MouseDown(1, 0, 1400, 100); }
    void Advance(int64_t milliseconds) { tree.Clock().Advance(milliseconds); }

    headless::WindowTree tree;
    headless::TestSite site;
    headless::HeadlessPopupWindows windows { tree };
    PopupForms forms { windows, site };
    InputPopups popups { forms };
    RecordingOwner owner;
    headless::HeadlessSurface inputSurface { tree };
    TolvaInput input { inputSurface, site };
};

} // namespace tolva::testing
