#pragma once
#include "tools/render/stage.h"
#include <functional>
#include <string>
#include <vector>

namespace tolva::render {

// One picture: a control in one state. Run builds the control on the stage, brings it into the
// state and returns once it has painted; the control may be gone by then, its image stays.
struct Scene {
    std::string name; // the PNG file's name, without extension
    float width = 1800; // the control's size in twips
    float height = 450;
    std::function<void(Stage&)> run;
};

// The scenes of each control, one function per control; AllScenes lists them all.
std::vector<Scene> CommandScenes();
std::vector<Scene> LabelScenes();
std::vector<Scene> ScrollScenes();
std::vector<Scene> TabsScenes();
std::vector<Scene> InputScenes();
std::vector<Scene> AllScenes();

} // namespace tolva::render
