#include "platform/headless/png_writer.h"
#include <png.h>
#include <vector>

namespace tolva::headless {

bool WritePng(const RasterCanvas& canvas, const std::filesystem::path& path)
{
    if (canvas.Width() == 0 || canvas.Height() == 0)
        return false;
    std::vector<png_byte> rgb;
    rgb.reserve(size_t(canvas.Width()) * size_t(canvas.Height()) * 3);
    for (int32_t y = 0; y < canvas.Height(); ++y) {
        for (int32_t x = 0; x < canvas.Width(); ++x) {
            const ColorRef color = canvas.Pixel(x, y);
            rgb.push_back(RedOf(color));
            rgb.push_back(GreenOf(color));
            rgb.push_back(BlueOf(color));
        }
    }
    png_image image {};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(canvas.Width());
    image.height = png_uint_32(canvas.Height());
    image.format = PNG_FORMAT_RGB;
    const bool written = png_image_write_to_file(&image, path.c_str(), 0, rgb.data(), 0, nullptr) != 0;
    png_image_free(&image);
    return written;
}

} // namespace tolva::headless
