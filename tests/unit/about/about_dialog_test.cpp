#include "about/about_dialog.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

bool Inside(const AboutDialog::Box& inner, const AboutDialog::Box& outer)
{
    return inner.x >= outer.x && inner.y >= outer.y && inner.x + inner.width <= outer.x + outer.width
        && inner.y + inner.height <= outer.y + outer.height;
}

bool Overlap(const AboutDialog::Box& a, const AboutDialog::Box& b)
{
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

TEST(AboutDialog, NamesTheLibraryAndItsVersion)
{
    AboutDialog about;
    const auto lines = about.Lines();
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[0].text, u"TolvaKit");
    EXPECT_EQ(lines[1].text, String(u"Version ") + AboutDialog::Version);
    EXPECT_FALSE(about.CloseCaption().empty());
}

std::vector<String> ControlNames(size_t count)
{
    std::vector<String> names;
    for (size_t i = 0; i < count; ++i)
        names.push_back(u"Control" + String(1, char16_t(u'A' + i)));
    return names;
}

// Without images, with the library's six, and with more than one row holds.
class AboutDialogLayout : public testing::TestWithParam<size_t> { };

TEST_P(AboutDialogLayout, EverythingFitsTheClientAreaWithoutOverlapping)
{
    AboutDialog about(ControlNames(GetParam()));
    std::vector<AboutDialog::Box> boxes { about.CloseButton() };
    for (const auto& line : about.Lines())
        boxes.push_back(line.box);
    const auto images = about.Images();
    ASSERT_EQ(images.size(), GetParam());
    for (size_t i = 0; i < images.size(); ++i) {
        EXPECT_EQ(images[i].control, ControlNames(GetParam())[i]);
        boxes.push_back(images[i].box);
    }
    const AboutDialog::Box client = about.Client();
    for (size_t i = 0; i < boxes.size(); ++i) {
        EXPECT_TRUE(Inside(boxes[i], client)) << i;
        for (size_t j = i + 1; j < boxes.size(); ++j)
            EXPECT_FALSE(Overlap(boxes[i], boxes[j])) << i << " " << j;
    }
}

INSTANTIATE_TEST_SUITE_P(Images, AboutDialogLayout, testing::Values(0u, 6u, 14u));

} // namespace
} // namespace tolva
