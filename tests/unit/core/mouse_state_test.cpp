#include "core/mouse_state.h"
#include "platform/headless/headless_surface.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

using headless::HeadlessSurface;
using headless::WindowTree;

class UpdateHoverTest : public ::testing::Test {
protected:
    UpdateHoverTest() { surface.Resize(1500, 600); } // 100 x 40 pixels

    WindowTree tree;
    HeadlessSurface surface { tree };
    MouseState state;
};

TEST_F(UpdateHoverTest, InsideTakesTheCaptureAndTurnsHot)
{
    UpdateHover(surface, state, 0, 0);
    EXPECT_TRUE(state.hot);
    EXPECT_TRUE(surface.HasCapture());
    UpdateHover(surface, state, 1499.9f, 599.9f);
    EXPECT_TRUE(state.hot);
    EXPECT_TRUE(surface.HasCapture());
}

TEST_F(UpdateHoverTest, TheRightAndBottomEdgesAreOutside)
{
    for (auto [x, y] : { std::pair { 1500.0f, 300.0f }, { 700.0f, 600.0f }, { -0.5f, 300.0f }, { 700.0f, -1.0f } }) {
        UpdateHover(surface, state, 700, 300);
        ASSERT_TRUE(state.hot);
        UpdateHover(surface, state, x, y);
        EXPECT_FALSE(state.hot) << x << "," << y;
        EXPECT_FALSE(surface.HasCapture()) << x << "," << y;
    }
}

TEST_F(UpdateHoverTest, AMoveOutsideReleasesWhateverHoldsTheCapture)
{
    HeadlessSurface other(tree);
    other.SetCapture();
    UpdateHover(surface, state, 2000, 0);
    EXPECT_EQ(tree.Capture(), nullptr);
}

TEST_F(UpdateHoverTest, TheBorderIsNotPartOfTheScale)
{
    surface.SetBorderStyle(1); // 2 pixels each side: the scale is 1440 twips wide
    UpdateHover(surface, state, 1439, 10);
    EXPECT_TRUE(state.hot);
    UpdateHover(surface, state, 1440, 10);
    EXPECT_FALSE(state.hot);
}

} // namespace
} // namespace tolva
