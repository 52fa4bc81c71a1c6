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

TEST(AboutDialog, EverythingFitsTheClientAreaWithoutOverlapping)
{
    AboutDialog about;
    const auto lines = about.Lines();
    const AboutDialog::Box client = about.Client();
    EXPECT_TRUE(Inside(about.CloseButton(), client));
    for (size_t i = 0; i < lines.size(); ++i) {
        EXPECT_TRUE(Inside(lines[i].box, client)) << i;
        EXPECT_FALSE(Overlap(lines[i].box, about.CloseButton())) << i;
        for (size_t j = i + 1; j < lines.size(); ++j)
            EXPECT_FALSE(Overlap(lines[i].box, lines[j].box)) << i << " " << j;
    }
}

} // namespace
} // namespace tolva
