#include "tools/render/scene.h"

namespace tolva::render {

std::vector<Scene> AllScenes()
{
    std::vector<Scene> scenes;
    for (auto list : { CommandScenes, LabelScenes, ScrollScenes, TabsScenes, InputScenes }) {
        for (Scene& scene : list())
            scenes.push_back(std::move(scene));
    }
    return scenes;
}

} // namespace tolva::render
