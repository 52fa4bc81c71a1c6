#include "platform/headless/window_picture.h"
#include "tests/unit/support/picture.h"
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

    // The picture with the colours named: g green, b blue, k black; the 3D edge's s shadow, d dark
    // shadow, h highlight and l light.
    std::vector<std::string> Picture() const
    {
        const RasterCanvas picture = WindowPicture(root);
        const auto system = [&picture](OleColor colour) { return picture.SystemColor(SystemColorIndex(colour)); };
        return Runs(picture,
            { { Green, 'g' }, { Blue, 'b' }, { Black, 'k' }, { system(SystemColor::ButtonShadow), 's' },
                { system(SystemColor::DarkShadow3D), 'd' }, { system(SystemColor::ButtonHighlight), 'h' },
                { system(SystemColor::Light3D), 'l' } });
    }

    WindowTree tree;
    HeadlessSurface root { tree };
    std::unique_ptr<Surface> child = root.CreateChild();
};

TEST_F(WindowPictureTest, WithoutBorderItIsTheClientAreaWithTheChildrenOverIt)
{
    EXPECT_EQ(Picture(), (std::vector<std::string> { "0: g10", "1-3: g2 b4 g4", "4-7: g10" }));
    child->SetVisible(false);
    EXPECT_EQ(Picture(), std::vector<std::string> { "0-7: g10" }) << "a hidden child is not drawn";
}

TEST_F(WindowPictureTest, AFlatBorderIsABlackFrameOfOnePixelAndTheClientStartsInsideIt)
{
    root.SetAppearance(SurfaceAppearance::Flat);
    root.SetBorderStyle(1);
    EXPECT_EQ(Picture(), (std::vector<std::string> { "0: k10", "1: k1 g8 k1", "2-4: k1 g2 b4 g2 k1", "5-6: k1 g8 k1", "7: k10" }));
}

// Shadow above and to the left over the dark shadow, highlight below and to the right over the
// light edge.
TEST_F(WindowPictureTest, A3DBorderIsTheSunkenEdgeOfTwoPixels)
{
    root.SetBorderStyle(1);
    EXPECT_EQ(Picture(),
        (std::vector<std::string> { "0: s9 h1", "1: s1 d7 l1 h1", "2: s1 d1 g6 l1 h1", "3-5: s1 d1 g2 b4 l1 h1",
            "6: s1 l8 h1", "7: h10" }));
}

} // namespace
} // namespace tolva::headless
