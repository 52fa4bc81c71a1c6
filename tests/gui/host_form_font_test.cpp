// Fonts in the form host: a form saved and loaded again keeps every control's font as the file
// gave it, although Wine's font objects report the faces and sizes they realised.
#include "host/form/form_reader.h"
#include "host/form/form_writer.h"
#include "host/win32/text_file.h"
#include "tests/gui/hosted_form.h"
#include "tests/win32/support/font_printing.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

using test::HostedForm;

constexpr std::string_view TahomaForm = R"(VERSION 5.00
Begin VB.Form frmFonts
   Caption         =   "Fonts"
   ClientWidth     =   4000
   ClientHeight    =   2000
   BeginProperty Font
      Name            =   "MS Sans Serif"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Begin TolvaKit.TolvaCommand cmdTahoma
      Left            =   120
      Top             =   60
      Width           =   2000
      Height          =   600
      Caption         =   "Tahoma"
      BeginProperty Font
         Name            =   "Tahoma"
         Size            =   9
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
   End
   Begin TolvaKit.TolvaLabel lblPlain
      Left            =   120
      Top             =   900
      Width           =   2000
      Height          =   300
      Caption         =   "Form's font"
   End
End
)";

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

TEST(HostFormFont, Tahoma9BoldSurvivesSaveAndReload)
{
    std::string firstSave;
    {
        HostedForm hosted(TahomaForm);
        firstSave = FormWriter::Write(hosted.Form().Save());
    }
    const FormObject saved = FormReader::Read(firstSave);
    ExpectSameFonts(saved, FormReader::Read(TahomaForm));
    const Font* tahoma = FontOf(saved.children.at(0));
    ASSERT_NE(tahoma, nullptr);
    EXPECT_EQ(tahoma->name, u"Tahoma");
    EXPECT_EQ(tahoma->size, 9.0);
    EXPECT_EQ(tahoma->weight, 700);

    HostedForm again(firstSave);
    EXPECT_EQ(FormWriter::Write(again.Form().Save()), firstSave);
}

TEST(HostFormFont, TheDemoFormKeepsItsTahomaFonts)
{
    const std::string unix = TOLVA_EXAMPLES_DIR "/demo.frm";
    const std::optional<std::string> text = host::ReadTextFile(u"Z:" + FromUtf8(unix), 1 << 20);
    ASSERT_TRUE(text);
    const FormObject original = FormReader::Read(*text);
    HostedForm hosted(*text);
    const FormObject saved = FormReader::Read(FormWriter::Write(hosted.Form().Save()));
    ASSERT_NE(FontOf(saved), nullptr);
    EXPECT_EQ(FontOf(saved)->name, u"Tahoma");
    ExpectSameFonts(saved, original);
}

} // namespace
} // namespace tolva::win32
