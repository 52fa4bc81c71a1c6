#include "controls/tabs/tolva_tabs.h"
#include "tools/render/scene.h"

namespace tolva::render {

namespace {

using Pose = std::function<void(TolvaTabs&, Stage&)>;

// A new 400 x 100 pixel strip with three tabs with access keys, as a form shows it at run time,
// then posed.
Scene TabsScene(std::string name, Pose pose)
{
    return { "tabs_" + name, 6000, 1500, [pose = std::move(pose)](Stage& stage) {
                TolvaTabs tabs { stage.Surface(), stage.Site() };
                tabs.InitProperties();
                for (const char16_t* caption : { u"&General", u"&Accounts", u"&Reports" })
                    tabs.AddItem(caption);
                tabs.SetSelectedItem(1);
                stage.Surface().Paint();
                pose(tabs, stage);
            } };
}

} // namespace

std::vector<Scene> TabsScenes()
{
    return {
        TabsScene("first_selected", [](TolvaTabs&, Stage&) {}),
        TabsScene("second_pressed", [](TolvaTabs&, Stage& stage) { stage.Surface().MouseDown(1, 0, 2000, 100); }),
        TabsScene("narrow_tabs_overrun", [](TolvaTabs& tabs, Stage&) { tabs.SetTabWidth(900); }),
        TabsScene("coloured",
            [](TolvaTabs& tabs, Stage&) {
                tabs.SetBackColor(0xF0E8D8);
                tabs.SetBackColorInactive(0xC0B0A0);
                tabs.SetBackColorBehind(0x605040);
                tabs.SetBorderColor(0x000080);
            }),
        TabsScene("empty", [](TolvaTabs& tabs, Stage&) { tabs.Clear(); }),
    };
}

} // namespace tolva::render
