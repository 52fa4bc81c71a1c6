#include "controls/command/tolva_command.h"
#include "tools/render/scene.h"

namespace tolva::render {

namespace {

constexpr float Middle = 225; // twips from the top: on the caption's line

using Pose = std::function<void(TolvaCommand&, Stage&)>;

// A new 120 x 30 pixel button with an access key in its caption, as a form shows it at run time,
// then posed.
Scene CommandScene(std::string name, Pose pose)
{
    return { "command_" + name, 1800, 450, [pose = std::move(pose)](Stage& stage) {
                TolvaCommand button { stage.Surface(), stage.Site() };
                button.InitProperties();
                button.SetCaption(u"&Open file");
                stage.Surface().Paint();
                pose(button, stage);
            } };
}

} // namespace

std::vector<Scene> CommandScenes()
{
    return {
        CommandScene("normal", [](TolvaCommand&, Stage&) {}),
        CommandScene("hot", [](TolvaCommand&, Stage& stage) { stage.Surface().MouseMove(0, 0, 600, Middle); }),
        CommandScene("pushed",
            [](TolvaCommand&, Stage& stage) {
                stage.Surface().MouseMove(0, 0, 600, Middle);
                stage.Surface().MouseDown(1, 0, 600, Middle);
            }),
        CommandScene("disabled", [](TolvaCommand& button, Stage&) { button.SetEnabled(false); }),
        CommandScene("focused", [](TolvaCommand&, Stage& stage) { stage.Surface().SetFocus(); }),
        CommandScene("default",
            [](TolvaCommand&, Stage& stage) {
                stage.Site().displayAsDefault = true;
                stage.Surface().AmbientChanged(u"DisplayAsDefault");
            }),
        CommandScene("menu",
            [](TolvaCommand& button, Stage&) {
                button.SetCaption(u"&File");
                button.SetStyle(tkStyle::tkMenu);
            }),
        CommandScene(
            "centred", [](TolvaCommand& button, Stage&) { button.SetAlignment(tkCommandAlignment::tkCenter); }),
    };
}

} // namespace tolva::render
