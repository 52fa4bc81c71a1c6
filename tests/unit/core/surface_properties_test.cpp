#include "platform/headless/headless_surface.h"
#include <cmath>
#include <gtest/gtest.h>

namespace tolva {
namespace {

using headless::HeadlessSurface;
using headless::WindowTree;

TEST(SurfaceProperties, ANewSurfaceHasTheStandardLook)
{
    WindowTree tree;
    HeadlessSurface surface(tree);
    EXPECT_EQ(surface.BackColor(), 0x8000000Fu);
    EXPECT_EQ(surface.ForeColor(), 0x80000012u);
    EXPECT_TRUE(surface.Enabled());
    EXPECT_TRUE(surface.Visible());
    EXPECT_EQ(surface.BorderStyle(), 0);
    EXPECT_EQ(surface.Appearance(), SurfaceAppearance::ThreeD);
    EXPECT_EQ(surface.GetFont(), Font {});
    EXPECT_EQ(surface.AccessKeys(), u"");
    EXPECT_EQ(surface.TwipsPerPixelX(), 15);
    EXPECT_EQ(surface.TwipsPerPixelY(), 15);
}

// A 3D border takes two pixels each side, a flat one a single pixel; without a border a flat
// surface has no frame either.
TEST(SurfaceProperties, TheScaleIsTheSizeLessTheBorder)
{
    WindowTree tree;
    HeadlessSurface surface(tree);
    surface.Move(30, 45, 1200, 300);
    EXPECT_EQ(surface.Left(), 30);
    EXPECT_EQ(surface.Top(), 45);
    EXPECT_EQ(surface.ScaleWidth(), 1200);
    EXPECT_EQ(surface.ScaleHeight(), 300);
    surface.SetBorderStyle(1);
    EXPECT_EQ(surface.Width(), 1200);
    EXPECT_EQ(surface.ScaleWidth(), 1140);
    EXPECT_EQ(surface.ScaleHeight(), 240);
    surface.SetAppearance(SurfaceAppearance::Flat);
    EXPECT_EQ(surface.ScaleWidth(), 1170);
    EXPECT_EQ(surface.ScaleHeight(), 270);
    surface.SetBorderStyle(0);
    EXPECT_EQ(surface.ScaleWidth(), 1200);
    surface.SetBorderStyle(1);
    surface.Move(0, 0, 30, 30);
    EXPECT_EQ(surface.ScaleWidth(), 0);
}

TEST(SurfaceProperties, SizesFromOutsideAreBounded)
{
    WindowTree tree;
    HeadlessSurface surface(tree);
    surface.Move(std::nanf(""), -10, -500, std::nanf(""));
    EXPECT_EQ(surface.Left(), 0);
    EXPECT_EQ(surface.Top(), -10);
    EXPECT_EQ(surface.Width(), 0);
    EXPECT_EQ(surface.Height(), 0);
    // One side at a time, so that the window image stays empty.
    surface.Move(0, 0, 1e30f, 0);
    EXPECT_EQ(surface.Width(), 1e7f);
    surface.Move(0, 0, 0, INFINITY);
    EXPECT_EQ(surface.Height(), 1e7f);
}

} // namespace
} // namespace tolva
