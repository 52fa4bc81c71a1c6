// tolva_render draws on the headless platform and writes PNG files:
//
//   tolva_render <folder> [--zoom N]
//       every scene of the controls, into <folder>/<scene>.png, printing each path;
//   tolva_render <form.frm> <picture.png> [--text-boxes <file>] [--zoom N]
//       the client area of a form of the form host (TolvaHost's file format) with its controls;
//       --text-boxes writes where the picture holds text, one "left top right bottom" line per
//       box, for comparing it with a picture drawn by another font engine.
//
// --zoom enlarges the pictures N times (1 to 16), pixel for pixel, for looking at them.
// Exit code 0, 1 when something cannot be read or written, 2 for bad usage or a refused form.
#include "host/form/form_reader.h"
#include "host/form/form_syntax_error.h"
#include "platform/headless/font_engine.h"
#include "platform/headless/png_writer.h"
#include "tools/render/form_stage.h"
#include "tools/render/scene.h"
#include "tools/render/text_boxes.h"
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <string_view>
#include <vector>

namespace {

using tolva::headless::RasterCanvas;

struct Options {
    std::vector<std::string_view> operands;
    std::string_view textBoxes;
    int zoom = 1;
};

std::optional<Options> Parse(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--zoom" && i + 1 < argc) {
            const std::string_view value = argv[++i];
            const auto parsed = std::from_chars(value.data(), value.data() + value.size(), options.zoom);
            if (parsed.ec != std::errc() || parsed.ptr != value.data() + value.size() || options.zoom < 1
                || options.zoom > 16)
                return std::nullopt;
        } else if (argument == "--text-boxes" && i + 1 < argc) {
            options.textBoxes = argv[++i];
        } else {
            options.operands.push_back(argument);
        }
    }
    return options;
}

int Usage()
{
    std::cerr << "usage: tolva_render <output-folder> [--zoom N]\n"
                 "       tolva_render <form.frm> <picture.png> [--text-boxes <file>] [--zoom N]\n";
    return 2;
}

RasterCanvas Zoomed(const RasterCanvas& image, int zoom)
{
    if (zoom == 1)
        return image;
    RasterCanvas zoomed(image.Width() * zoom, image.Height() * zoom);
    for (int32_t y = 0; y < image.Height(); ++y) {
        for (int32_t x = 0; x < image.Width(); ++x)
            zoomed.FillRect(x * zoom, y * zoom, (x + 1) * zoom, (y + 1) * zoom, image.Pixel(x, y));
    }
    return zoomed;
}

bool Write(const RasterCanvas& image, const std::filesystem::path& path, int zoom)
{
    if (tolva::headless::WritePng(Zoomed(image, zoom), path))
        return true;
    std::cerr << "tolva_render: cannot write " << path.string() << "\n";
    return false;
}

bool CreateFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    if (folder.empty() || std::filesystem::create_directories(folder, error) || !error)
        return true;
    std::cerr << "tolva_render: cannot create " << folder << ": " << error.message() << "\n";
    return false;
}

int RenderScenes(const std::filesystem::path& folder, int zoom)
{
    if (!CreateFolder(folder))
        return 1;
    int failures = 0;
    for (const tolva::render::Scene& scene : tolva::render::AllScenes()) {
        tolva::render::Stage stage(scene.width, scene.height);
        scene.run(stage);
        const std::filesystem::path path = folder / (scene.name + ".png");
        if (!Write(stage.Image(), path, zoom)) {
            ++failures;
            continue;
        }
        std::cout << path.string() << "\n";
    }
    return failures == 0 ? 0 : 1;
}

// The form drawn as it is, and again with its text hidden (once measured as it is, once wider)
// to find where the text and what it places are.
int RenderForm(const std::string& formPath, const std::filesystem::path& picture, std::string_view boxesPath,
    int zoom)
{
    std::ifstream file(formPath, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    if (!file) {
        std::cerr << "tolva_render: cannot read " << formPath << "\n";
        return 1;
    }
    try {
        const tolva::FormObject form = tolva::FormReader::Read(text.str());
        const RasterCanvas image = tolva::render::FormStage(form).Picture();
        if (!CreateFolder(picture.parent_path()) || !Write(image, picture, zoom))
            return 1;
        if (boxesPath.empty())
            return 0;
        tolva::headless::FontEngine& fonts = tolva::headless::FontEngine::Shared();
        fonts.SetTextProbe({ true, 0 });
        const RasterCanvas hidden = tolva::render::FormStage(form).Picture();
        fonts.SetTextProbe({ true, 1 });
        const RasterCanvas hiddenAndWider = tolva::render::FormStage(form).Picture();
        fonts.SetTextProbe({});
        std::ofstream boxes { std::string(boxesPath), std::ios::binary };
        for (const tolva::render::PixelBox& box : tolva::render::TextBoxes(image, hidden, hiddenAndWider))
            boxes << box.left << ' ' << box.top << ' ' << box.right << ' ' << box.bottom << '\n';
        if (!boxes.flush()) {
            std::cerr << "tolva_render: cannot write " << boxesPath << "\n";
            return 1;
        }
        return 0;
    } catch (const tolva::FormSyntaxError& error) {
        std::cerr << formPath << ": line " << error.Line() << ": " << error.Reason() << "\n";
        return 2;
    }
}

} // namespace

int main(int argc, char** argv)
{
    const std::optional<Options> options = Parse(argc, argv);
    if (!options)
        return Usage();
    const auto& operands = options->operands;
    if (operands.size() == 2)
        return RenderForm(std::string(operands[0]), operands[1], options->textBoxes, options->zoom);
    if (operands.size() == 1 && options->textBoxes.empty())
        return RenderScenes(operands[0], options->zoom);
    return Usage();
}
