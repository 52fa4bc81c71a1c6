#include "platform/headless/png_writer.h"
#include <filesystem>
#include <gtest/gtest.h>
#include <png.h>
#include <vector>

namespace tolva::headless {
namespace {

class PngWriterTest : public ::testing::Test {
protected:
    ~PngWriterTest() override { std::filesystem::remove(path); }

    std::filesystem::path path = std::filesystem::temp_directory_path()
        / ("tolva_png_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) + ".png");
};

TEST_F(PngWriterTest, WritesEveryPixelAsRgb)
{
    RasterCanvas canvas(3, 2);
    canvas.FillRect(0, 0, 1, 1, Rgb(255, 0, 0));
    canvas.FillRect(1, 0, 2, 1, Rgb(0, 255, 0));
    canvas.FillRect(2, 1, 3, 2, Rgb(10, 20, 30));
    ASSERT_TRUE(WritePng(canvas, path));

    png_image image {};
    image.version = PNG_IMAGE_VERSION;
    ASSERT_TRUE(png_image_begin_read_from_file(&image, path.c_str()));
    image.format = PNG_FORMAT_RGB;
    std::vector<png_byte> pixels(PNG_IMAGE_SIZE(image));
    ASSERT_TRUE(png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr));
    EXPECT_EQ(image.width, 3u);
    EXPECT_EQ(image.height, 2u);
    EXPECT_EQ(pixels, (std::vector<png_byte> { 255, 0, 0, 0, 255, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 10, 20, 30 }));
}

TEST_F(PngWriterTest, RefusesAnEmptyImageOrAnUnwritablePath)
{
    EXPECT_FALSE(WritePng(RasterCanvas(0, 5), path));
    EXPECT_FALSE(WritePng(RasterCanvas(2, 2), "/nonexistent-directory/x.png"));
}

} // namespace
} // namespace tolva::headless
