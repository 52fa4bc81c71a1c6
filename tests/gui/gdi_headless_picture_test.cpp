// The same button drawn by GDI on a real window and by the headless platform's raster canvas
// (pictures that tolva_render wrote, in the folder TOLVA_HEADLESS_PICTURES names): every pixel
// outside the caption's text must be the same. The caption itself differs, since the two draw
// glyphs with different font engines.
#include "controls/command/tolva_command.h"
#include "platform/win32/window/window_surface.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/png_reader.h"
#include "tests/gui/stub_site.h"
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>

namespace tolva::win32 {
namespace {

using test::Pixels;
using test::PngImage;

constexpr int Width = 120;
constexpr int Height = 30;

struct Scene {
    const char* name;
    std::function<void(TolvaCommand&, WindowSurface&, test::StubSite&)> pose;
};

void PrintTo(const Scene& scene, std::ostream* out)
{
    *out << scene.name;
}

struct Box {
    int left = Width, top = Height, right = 0, bottom = 0; // empty
    bool Empty() const { return left >= right || top >= bottom; }
    bool Contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
};

// Where a picture has caption pixels: anything but the background inside the frame and marks,
// left of the drop-down mark.
template <class Image> Box TextBox(const Image& image, uint32_t background)
{
    Box box;
    for (int y = 4; y < Height - 4; ++y)
        for (int x = 4; x < Width - 13; ++x)
            if (image.At(x, y) != background) {
                box.left = std::min(box.left, x);
                box.top = std::min(box.top, y);
                box.right = std::max(box.right, x + 1);
                box.bottom = std::max(box.bottom, y + 1);
            }
    return box;
}

Box Around(Box a, Box b)
{
    return { std::min(a.left, b.left) - 1, std::min(a.top, b.top) - 1, std::max(a.right, b.right) + 1,
        std::max(a.bottom, b.bottom) + 1 };
}

class GdiAndHeadless : public testing::TestWithParam<Scene> { };

TEST_P(GdiAndHeadless, DrawTheSamePictureApartFromTheText)
{
    const std::wstring folder = test::HeadlessPictureFolder();
    if (folder.empty())
        GTEST_SKIP() << "TOLVA_HEADLESS_PICTURES names no folder of tolva_render pictures";
    const std::string name = GetParam().name;
    const std::optional<PngImage> headless
        = test::ReadPng(folder + L"\\command_" + std::wstring(name.begin(), name.end()) + L".png");
    ASSERT_TRUE(headless) << "no picture command_" << name << ".png";
    ASSERT_EQ(headless->width, Width);
    ASSERT_EQ(headless->height, Height);

    // The scene as tolva_render sets it up: a new button called TolvaControl1, its caption set.
    test::TestWindow form(200, 80);
    test::StubSite site;
    site.extenderName = u"TolvaControl1";
    site.extenderWidth = Width * 15;
    site.extenderHeight = Height * 15;
    WindowSurface surface;
    surface.SetCanGetFocus(false); // the headless press leaves the focus where it is
    TolvaCommand button(surface, site);
    surface.CreateWindowIn(form.Get(), RECT { 0, 0, Width, Height });
    button.InitProperties();
    button.SetCaption(u"&Open file");
    UpdateWindow(surface.Window());
    GetParam().pose(button, surface, site);
    UpdateWindow(surface.Window());
    const Pixels gdi = Pixels::OfWindow(surface.Window());

    const uint32_t background = gdi.At(2, 2);
    EXPECT_EQ(headless->At(2, 2), background);
    const Box gdiText = TextBox(gdi, background);
    const Box headlessText = TextBox(*headless, background);
    ASSERT_FALSE(gdiText.Empty());
    ASSERT_FALSE(headlessText.Empty());
    const Box text = Around(gdiText, headlessText);
    int differences = 0;
    std::string first;
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
            if (!text.Contains(x, y) && gdi.At(x, y) != headless->At(x, y) && differences++ < 5)
                first += " (" + std::to_string(x) + "," + std::to_string(y) + ")";
    EXPECT_EQ(differences, 0) << "first at" << first;
}

const Scene Scenes[] = {
    { "normal", [](TolvaCommand&, WindowSurface&, test::StubSite&) {} },
    { "hot",
        [](TolvaCommand&, WindowSurface& surface, test::StubSite&) {
            SendMessageW(surface.Window(), WM_MOUSEMOVE, 0, MAKELPARAM(40, 15));
        } },
    { "pushed",
        [](TolvaCommand&, WindowSurface& surface, test::StubSite&) {
            SendMessageW(surface.Window(), WM_MOUSEMOVE, 0, MAKELPARAM(40, 15));
            SendMessageW(surface.Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, 15));
        } },
    { "disabled", [](TolvaCommand& button, WindowSurface&, test::StubSite&) { button.SetEnabled(false); } },
    { "focused", [](TolvaCommand&, WindowSurface& surface, test::StubSite&) { surface.SetFocus(); } },
    { "default",
        [](TolvaCommand&, WindowSurface& surface, test::StubSite& site) {
            site.displayAsDefault = true;
            surface.Listener()->OnAmbientChanged(u"DisplayAsDefault");
        } },
    { "menu",
        [](TolvaCommand& button, WindowSurface&, test::StubSite&) {
            button.SetCaption(u"&File");
            button.SetStyle(tkStyle::tkMenu);
        } },
    { "centred",
        [](TolvaCommand& button, WindowSurface&, test::StubSite&) {
            button.SetAlignment(tkCommandAlignment::tkCenter);
        } },
};

INSTANTIATE_TEST_SUITE_P(CommandLooks, GdiAndHeadless, testing::ValuesIn(Scenes),
    [](const testing::TestParamInfo<Scene>& info) { return std::string(info.param.name); });

} // namespace
} // namespace tolva::win32
