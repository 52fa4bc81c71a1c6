#pragma once
#include "platform/headless/raster_canvas.h"
#include <filesystem>

namespace tolva::headless {

// Writes the image as an 8-bit RGB PNG file; false when the file cannot be written or the image
// is empty.
[[nodiscard]] bool WritePng(const RasterCanvas& canvas, const std::filesystem::path& path);

} // namespace tolva::headless
