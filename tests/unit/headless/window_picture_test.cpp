#include "platform/headless/window_picture.h"
#include <gtest/gtest.h>

namespace tolva::headless {
namespace {

constexpr ColorRef Green = 0x00FF00, Blue = 0xFF0000, Black = 0x000000;

// A green window of 10 x 8 pixels with a blue child of 4 x 3 pixels at (2, 1) of its scale.
class WindowPictureTest : public ::testing::Test {
protected:
    WindowPictureTest()
    {
        root.SetBackColor(Green);
        root.Resize(150, 120);
        child->SetBackColor(Blue);
        child->Move(30, 15, 60, 45);
    }

    WindowTree tree;
    HeadlessSurface root { tree };
    std::unique_ptr<Surface> child = root.CreateChild();
};

TEST_F(WindowPictureTest, WithoutBorderItIsTheClientAreaWithTheChildrenOverIt)
{
    const RasterCanvas picture = WindowPicture(root);
    EXPECT_EQ(picture.Width(), 10);
    EXPECT_EQ(picture.Height(), 8);
    EXPECT_EQ(picture.Pixel(0, 0), Green);
    EXPECT_EQ(picture.Pixel(2, 1), Blue);
    EXPECT_EQ(picture.Pixel(5, 3), Blue);
    EXPECT_EQ(picture.Pixel(6, 4), Green);

    child->SetVisible(false);
    EXPECT_EQ(WindowPicture(root).Pixel(2, 1), Green) << "a hidden child is not drawn";
}

TEST_F(WindowPictureTest, AFlatBorderIsABlackFrameOfOnePixelAndTheClientStartsInsideIt)
{
    root.SetAppearance(SurfaceAppearance::Flat);
    root.SetBorderStyle(1);
    const RasterCanvas picture = WindowPicture(root);
    ASSERT_EQ(picture.Width(), 10);
    for (int32_t x = 0; x < 10; ++x) {
        EXPECT_EQ(picture.Pixel(x, 0), Black) << x;
        EXPECT_EQ(picture.Pixel(x, 7), Black) << x;
    }
    for (int32_t y = 0; y < 8; ++y) {
        EXPECT_EQ(picture.Pixel(0, y), Black) << y;
        EXPECT_EQ(picture.Pixel(9, y), Black) << y;
    }
    EXPECT_EQ(picture.Pixel(1, 1), Green);
    EXPECT_EQ(picture.Pixel(8, 6), Green);
    EXPECT_EQ(picture.Pixel(3, 2), Blue) << "the child sits in the client area";
    EXPECT_EQ(picture.Pixel(2, 1), Green);
}

TEST_F(WindowPictureTest, A3DBorderIsTheSunkenEdgeOfTwoPixels)
{
    root.SetBorderStyle(1);
    const RasterCanvas picture = WindowPicture(root);
    const auto colour = [&picture](OleColor system) { return picture.SystemColor(SystemColorIndex(system)); };
    EXPECT_EQ(picture.Pixel(0, 0), colour(SystemColor::ButtonShadow)); // above and to the left
    EXPECT_EQ(picture.Pixel(1, 1), colour(SystemColor::DarkShadow3D));
    EXPECT_EQ(picture.Pixel(9, 7), colour(SystemColor::ButtonHighlight)); // below and to the right
    EXPECT_EQ(picture.Pixel(8, 6), colour(SystemColor::Light3D));
    EXPECT_EQ(picture.Pixel(2, 2), Green);
    EXPECT_EQ(picture.Pixel(4, 3), Blue);
}

} // namespace
} // namespace tolva::headless
