#include "controls/input/tolva_input.h"
#include "tools/render/scene.h"
#include <memory>

namespace tolva::render {

namespace {

using Pose = std::function<void(TolvaInput&, Stage&)>;

constexpr float Width = 2400; // a 160 x 21 pixel field
constexpr float Height = 315;
constexpr float OnButton = 2250; // twips from the left of the inner area: on the button strip

// A new input with a typed text, as a form shows it at run time, then posed. The input stays
// alive for the picture: its text box is a window of its own.
Scene InputScene(std::string name, int32_t style, Pose pose)
{
    return { "input_" + name, Width, Height, [style, pose = std::move(pose)](Stage& stage) {
                auto input = std::make_shared<TolvaInput>(stage.Surface(), stage.Site());
                input->InitProperties();
                stage.Surface().Resize(Width, Height);
                input->SetStyle(style);
                input->SetText(u"1,234.50");
                stage.Surface().Paint();
                pose(*input, stage);
                stage.Keep(std::move(input));
            } };
}

} // namespace

std::vector<Scene> InputScenes()
{
    return {
        InputScene("text", tkInputStyles::tkTextBox, [](TolvaInput&, Stage&) {}),
        InputScene("calculator", tkInputStyles::tkCalculator, [](TolvaInput&, Stage&) {}),
        InputScene("button_hot", tkInputStyles::tkCalendar,
            [](TolvaInput&, Stage& stage) { stage.Surface().MouseMove(0, 0, OnButton, 100); }),
        InputScene("button_pushed", tkInputStyles::tkCombo,
            [](TolvaInput&, Stage& stage) {
                stage.Surface().MouseMove(0, 0, OnButton, 100);
                stage.Surface().MouseDown(1, 0, OnButton, 100);
            }),
        InputScene("selected", tkInputStyles::tkCombo,
            [](TolvaInput& input, Stage&) {
                input.AddItem(u"Travel");
                input.TextInput().SetFocus();
                input.SetListIndex(0);
            }),
        InputScene("coloured", tkInputStyles::tkCalculator,
            [](TolvaInput& input, Stage&) {
                input.SetBackColor(0xE0F0FF);
                input.SetForeColor(0x800000);
                input.SetddBackColor(0xC0E0F0);
            }),
    };
}

} // namespace tolva::render
