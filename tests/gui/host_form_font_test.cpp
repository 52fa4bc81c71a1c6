// Fonts in the form host: the demo form saved and loaded again keeps every control's font as the
// file gave it, although Wine's font objects report the faces and sizes they realised.
#include "host/form/form_reader.h"
#include "host/form/form_writer.h"
#include "tests/gui/host_program.h"
#include "tests/gui/hosted_form.h"
#include "tests/win32/support/font_printing.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

using test::HostedForm;

const Font* FontOf(const FormObject& object)
{
    const FormProperty* font = object.Find(u"Font");
    return font ? std::get_if<Font>(&font->value.Value()) : nullptr;
}

// The font of every control of the form, by name; nullptr where the file has none.
std::vector<std::pair<String, const Font*>> ControlFonts(const FormObject& form)
{
    std::vector<std::pair<String, const Font*>> fonts;
    for (const FormObject& child : form.children)
        fonts.emplace_back(child.name, FontOf(child));
    return fonts;
}

void ExpectSameFonts(const FormObject& saved, const FormObject& original)
{
    const auto savedFonts = ControlFonts(saved);
    const auto originalFonts = ControlFonts(original);
    ASSERT_EQ(savedFonts.size(), originalFonts.size());
    for (size_t i = 0; i < savedFonts.size(); ++i) {
        const auto& [name, font] = originalFonts[i];
        EXPECT_EQ(savedFonts[i].first, name);
        if (!font) {
            EXPECT_EQ(savedFonts[i].second, nullptr) << ToUtf8(name);
            continue;
        }
        ASSERT_NE(savedFonts[i].second, nullptr) << ToUtf8(name);
        EXPECT_EQ(*savedFonts[i].second, *font) << ToUtf8(name);
    }
}

TEST(HostFormFont, TheDemoFormKeepsItsTahomaFonts)
{
    const std::string text = test::ReadFile(test::Examples() + L"\\demo.frm");
    ASSERT_FALSE(text.empty());
    const FormObject original = FormReader::Read(text);
    std::string firstSave;
    {
        HostedForm hosted(text);
        firstSave = FormWriter::Write(hosted.Form().Save());
    }
    const FormObject saved = FormReader::Read(firstSave);
    ASSERT_NE(FontOf(saved), nullptr);
    EXPECT_EQ(FontOf(saved)->name, u"Tahoma");
    ExpectSameFonts(saved, original); // Tahoma 9.75 bold on cmdBold, the form's font on others
    HostedForm again(firstSave);
    EXPECT_EQ(FormWriter::Write(again.Form().Save()), firstSave);
}

} // namespace
} // namespace tolva::win32
