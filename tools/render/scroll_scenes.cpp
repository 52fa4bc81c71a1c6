#include "controls/scroll/tolva_scroll.h"
#include "tools/render/scene.h"
#include <memory>

namespace tolva::render {

namespace {

using Pose = std::function<void(TolvaScroll&, Stage&)>;

// A new 20 x 160 pixel scroll bar over 1 to 100 with a page of 20 at 40, as a form shows it at
// run time, then posed. The scroll bar stays alive for the picture: its parts are windows of
// their own.
Scene ScrollScene(std::string name, Pose pose)
{
    return { "scroll_" + name, 300, 2400, [pose = std::move(pose)](Stage& stage) {
                auto scroll = std::make_shared<TolvaScroll>(stage.Surface(), stage.Site());
                scroll->InitProperties();
                stage.Surface().Resize(300, 2400);
                stage.Surface().Show();
                scroll->SetLargeChange(20);
                scroll->SetValue(40);
                pose(*scroll, stage);
                stage.Keep(std::move(scroll));
            } };
}

headless::HeadlessSurface& Part(Stage& stage, size_t index)
{
    return *stage.Surface().Children().at(index);
}

} // namespace

std::vector<Scene> ScrollScenes()
{
    return {
        ScrollScene("normal", [](TolvaScroll&, Stage&) {}),
        ScrollScene("paging_down", [](TolvaScroll&, Stage& stage) { stage.Surface().MouseDown(1, 0, 150, 2000); }),
        ScrollScene("paging_up", [](TolvaScroll&, Stage& stage) { stage.Surface().MouseDown(1, 0, 150, 300); }),
        ScrollScene("down_arrow_hot", [](TolvaScroll&, Stage& stage) { Part(stage, 1).MouseMove(0, 0, 100, 100); }),
        ScrollScene("up_arrow_pushed",
            [](TolvaScroll&, Stage& stage) {
                Part(stage, 0).MouseMove(0, 0, 100, 100);
                Part(stage, 0).MouseDown(1, 0, 100, 100);
            }),
        ScrollScene("dragged",
            [](TolvaScroll&, Stage& stage) {
                Part(stage, 2).MouseDown(1, 0, 100, 30);
                Part(stage, 2).MouseMove(1, 0, 100, 30 + 700);
            }),
        ScrollScene("coloured", [](TolvaScroll& scroll, Stage&) { scroll.SetBackColor(0xF0E0C0); }),
    };
}

} // namespace tolva::render
