#include "host/form/form_reader.h"
#include "host/form/form_syntax_error.h"
#include <gtest/gtest.h>
#include <string>

namespace tolva {
namespace {

constexpr std::string_view SampleForm = R"(VERSION 5.00
Object = "{00000000-0000-0000-0000-000000000000}#1.0#0"; "TolvaKit.dll"
Begin VB.Form frmMain
   Caption         =   "Main ""window"""
   ClientWidth     =   4680
   Begin TolvaKit.TolvaCommand cmdOK
      Left            =   120
      Caption         =   "&OK"
      BackColor       =   &H00CEDBDE&
      Enabled         =   0   'False
      Default         =   -1  'True
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name            =   "Tahoma"
         Size            =   9.75
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   -1  'True
         Strikethrough   =   0   'False
      EndProperty
   End
   Begin VB.Menu mnuFile
      Caption         =   "&File"
      Visible         =   0   'False
      Begin VB.Menu mnuFileOpen
         Caption         =   "&Open..."
      End
   End
End
Attribute VB_Name = "frmMain"
)";

String Text(const FormObject& object, StringView key)
{
    return object.Find(key)->value.ToString();
}

// Each literal gets its type, a font group becomes one font value, and keys and names ignore case.
TEST(FormReader, ReadsTheFormItsControlsAndMenusInOrder)
{
    FormObject form = FormReader::Read(SampleForm);
    EXPECT_EQ(form.type, u"VB.Form");
    EXPECT_EQ(form.name, u"frmMain");
    EXPECT_EQ(form.line, 3);
    EXPECT_EQ(Text(form, u"Caption"), u"Main \"window\"");
    ASSERT_EQ(form.children.size(), 2u);
    EXPECT_EQ(form.children[0].type, u"TolvaKit.TolvaCommand");
    EXPECT_EQ(form.children[0].name, u"cmdOK");
    EXPECT_EQ(form.children[1].name, u"mnuFile");
    ASSERT_EQ(form.children[1].children.size(), 1u);
    EXPECT_EQ(Text(form.children[1].children[0], u"Caption"), u"&Open...");

    const FormObject& ok = form.children[0];
    EXPECT_EQ(ok.Find(u"Left")->value, Variant(int32_t(120)));
    EXPECT_EQ(ok.Find(u"backcolor")->value, Variant(uint32_t(0xCEDBDE)));
    EXPECT_EQ(ok.Find(u"Enabled")->value, Variant(false));
    EXPECT_EQ(ok.Find(u"Default")->value, Variant(true));
    EXPECT_EQ(ok.Find(u"Caption")->line, 8);
    Font expected;
    expected.name = u"Tahoma";
    expected.size = 9.75;
    expected.weight = 700;
    expected.italic = true;
    EXPECT_EQ(ok.Find(u"Font")->value, Variant(expected));
    EXPECT_NE(form.FindDescendant(u"MNUFILEOPEN"), nullptr);
    EXPECT_EQ(form.FindDescendant(u"mnuNone"), nullptr);
}

TEST(FormReader, AcceptsCrLfLinesAByteOrderMarkAndNoVersionLine)
{
    FormObject form = FormReader::Read("\xEF\xBB\xBF"
                                       "Begin VB.Form f\r\n  Caption = \"A\" ' note\r\nEnd\r\n");
    EXPECT_EQ(Text(form, u"Caption"), u"A");
}

TEST(FormReader, ReadsHexWithoutTrailingAmpersandDecimalsAndBareBooleans)
{
    FormObject form = FormReader::Read("Begin VB.Form f\n a = &HFF\n b = -2.5E1\n c = True\n d = -7\nEnd\n");
    EXPECT_EQ(form.Find(u"a")->value, Variant(int32_t(255)));
    EXPECT_EQ(form.Find(u"b")->value, Variant(-25.0));
    EXPECT_EQ(form.Find(u"c")->value, Variant(true));
    EXPECT_EQ(form.Find(u"d")->value, Variant(int32_t(-7)));
}

TEST(FormReader, KeepsNonAsciiText)
{
    FormObject form = FormReader::Read("Begin VB.Form f\n Caption = \"Gr\xC3\xBC\xC3\x9F"
                                       "e\"\nEnd\n");
    EXPECT_EQ(Text(form, u"Caption"), u"Grüße");
}

struct Malformed {
    const char* text;
    int line;
    const char* reasonPart;
};

class FormReaderRefuses : public testing::TestWithParam<Malformed> { };

TEST_P(FormReaderRefuses, WithTheLineAndTheReason)
{
    const Malformed& m = GetParam();
    try {
        FormReader::Read(m.text);
        FAIL() << "accepted: " << m.text;
    } catch (const FormSyntaxError& e) {
        EXPECT_EQ(e.Line(), m.line) << e.what();
        EXPECT_NE(e.Reason().find(m.reasonPart), std::string::npos) << e.what();
        EXPECT_EQ(std::string(e.what()).rfind("line " + std::to_string(m.line) + ": ", 0), 0u) << e.what();
    }
}

INSTANTIATE_TEST_SUITE_P(FormFiles, FormReaderRefuses,
    testing::Values(Malformed { "", 1, "no form" }, Malformed { "Caption = 1\n", 1, "Begin VB.Form" },
        Malformed { "Begin TolvaKit.TolvaCommand c\nEnd\n", 1, "VB.Form" },
        Malformed { "Begin VB.Form f\n Caption = \"OK\n", 2, "closing quote" },
        Malformed { "Begin VB.Form f\n Caption = \"OK\" x\n", 2, "after the closing quote" },
        Malformed { "Begin VB.Form f\n Width = 12x\nEnd\n", 2, "not a value" },
        Malformed { "Begin VB.Form f\n Width = 99999999999\nEnd\n", 2, "32-bit" },
        Malformed { "Begin VB.Form f\n Color = &H123456789&\nEnd\n", 2, "1 to 8" },
        Malformed { "Begin VB.Form f\n Enabled = 5 'True\nEnd\n", 2, "boolean" },
        Malformed { "Begin VB.Form f\n Picture = $\"f.frx\":0000\nEnd\n", 2, "binary resource" },
        Malformed { "Begin VB.Form f\n Width\nEnd\n", 2, "Key = value" },
        Malformed { "Begin VB.Form f\n 1st = 3\nEnd\n", 2, "property name" },
        Malformed { "Begin VB.Form f\n Width =\nEnd\n", 2, "missing" },
        Malformed { "Begin VB.Form f\n Width = 1\n width = 2\nEnd\n", 3, "twice" },
        Malformed { "Begin VB.Form f\n Begin TolvaKit.TolvaCommand c\n Caption = 1\n", 2, "c has no End" },
        Malformed { "Begin VB.Form f\n Begin TolvaKit.TolvaCommand c\n End\n", 1, "f has no End" },
        Malformed { "Begin VB.Form f\n Begin TolvaKit c\n End\nEnd\n", 2, "type name" },
        Malformed { "Begin VB.Form f\n Begin VB.Menu m-1\n End\nEnd\n", 2, "valid name" },
        Malformed { "Begin VB.Form f\n Begin VB.Menu a\n End\n Begin VB.Menu A\n End\nEnd\n", 4, "line 2" },
        Malformed { "Begin VB.Form f\nEnd\nBegin VB.Form g\nEnd\n", 3, "Attribute" },
        Malformed { "Begin VB.Form f\n EndProperty\nEnd\n", 2, "without BeginProperty" },
        Malformed { "Begin VB.Form f\n BeginProperty Font\n  Name = \"A\"\nEnd\n", 4, "or EndProperty" },
        Malformed { "Begin VB.Form f\n BeginProperty Font\n", 2, "without EndProperty" },
        Malformed {
            "Begin VB.Form f\n BeginProperty Font\n  Colour = 1\n EndProperty\nEnd\n", 3, "not a font attribute" },
        Malformed { "Begin VB.Form f\n BeginProperty Font\n  Size = 0\n EndProperty\nEnd\n", 3, "out of range" },
        Malformed { "Begin VB.Form f\n BeginProperty Font\n  Name = 3\n EndProperty\nEnd\n", 3, "font name" },
        Malformed { "Begin VB.Form f\n End junk\nEnd\n", 2, "after End" }));

TEST(FormReaderLimits, RefusesDeepNesting)
{
    std::string text = "Begin VB.Form f\n";
    for (int i = 0; i < 40; ++i)
        text += "Begin VB.Menu m" + std::to_string(i) + "\n";
    try {
        FormReader::Read(text);
        FAIL();
    } catch (const FormSyntaxError& e) {
        EXPECT_EQ(e.Line(), 33);
        EXPECT_NE(e.Reason().find("nested"), std::string::npos);
    }
}

TEST(FormReaderLimits, RefusesOverlongLinesAndHugeFiles)
{
    std::string longLine = "Begin VB.Form f\n Caption = \"" + std::string(5000, 'x') + "\"\nEnd\n";
    EXPECT_THROW(FormReader::Read(longLine), FormSyntaxError);
    std::string huge = "Begin VB.Form f\n" + std::string(FormReader::MaxTextSize, '\n') + "End\n";
    EXPECT_THROW(FormReader::Read(huge), FormSyntaxError);
}

TEST(FormReaderLimits, RefusesTooManyObjects)
{
    std::string text = "Begin VB.Form f\n";
    for (size_t i = 0; i < FormReader::MaxObjects; ++i)
        text += "Begin VB.Menu m" + std::to_string(i) + "\nEnd\n";
    text += "End\n";
    EXPECT_THROW(FormReader::Read(text), FormSyntaxError);
}

} // namespace
} // namespace tolva
