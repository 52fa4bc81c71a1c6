// tolva_render <folder> [--zoom N]: renders every scene of the headless controls into
// <folder>/<scene>.png and prints each path. --zoom enlarges the pictures N times (1 to 16),
// pixel for pixel, for looking at them.
#include "platform/headless/png_writer.h"
#include "tools/render/scene.h"
#include <charconv>
#include <filesystem>
#include <iostream>
#include <string_view>

namespace {

using tolva::headless::RasterCanvas;

RasterCanvas Zoomed(const RasterCanvas& image, int zoom)
{
    RasterCanvas zoomed(image.Width() * zoom, image.Height() * zoom);
    for (int32_t y = 0; y < image.Height(); ++y) {
        for (int32_t x = 0; x < image.Width(); ++x)
            zoomed.FillRect(x * zoom, y * zoom, (x + 1) * zoom, (y + 1) * zoom, image.Pixel(x, y));
    }
    return zoomed;
}

int Usage()
{
    std::cerr << "usage: tolva_render <output-folder> [--zoom N]\n";
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2 && argc != 4)
        return Usage();
    int zoom = 1;
    if (argc == 4) {
        const std::string_view option = argv[2], value = argv[3];
        const auto parsed = std::from_chars(value.data(), value.data() + value.size(), zoom);
        if (option != "--zoom" || parsed.ec != std::errc() || parsed.ptr != value.data() + value.size() || zoom < 1
            || zoom > 16)
            return Usage();
    }

    const std::filesystem::path folder = argv[1];
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        std::cerr << "tolva_render: cannot create " << folder << ": " << error.message() << "\n";
        return 1;
    }

    int failures = 0;
    for (const tolva::render::Scene& scene : tolva::render::AllScenes()) {
        tolva::render::Stage stage(scene.width, scene.height);
        scene.run(stage);
        const std::filesystem::path path = folder / (scene.name + ".png");
        const bool written = zoom == 1 ? tolva::headless::WritePng(stage.Image(), path)
                                       : tolva::headless::WritePng(Zoomed(stage.Image(), zoom), path);
        if (!written) {
            std::cerr << "tolva_render: cannot write " << path.string() << "\n";
            ++failures;
            continue;
        }
        std::cout << path.string() << "\n";
    }
    return failures == 0 ? 0 : 1;
}
