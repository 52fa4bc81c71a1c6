#include "host/form/form_literal.h"
#include "host/form/form_reader.h"
#include "host/form/form_writer.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

FormObject SampleForm()
{
    FormObject form { u"VB.Form", u"frmMain" };
    form.Set(u"Caption", u"Say \"hi\"");
    form.Set(u"ClientWidth", int32_t(4680));
    FormObject button { u"TolvaKit.TolvaCommand", u"cmdOK" };
    button.Set(u"Left", 120.5f);
    button.Set(u"BackColorActive", uint32_t(0x80000012));
    button.Set(u"Enabled", false);
    button.Set(u"Style", int32_t(1));
    button.Set(u"Height", int16_t(495));
    Font font;
    font.name = u"Tahoma";
    font.size = 9.75;
    font.strikethrough = true;
    font.charset = 238;
    button.Set(u"Font", font);
    FormObject menu { u"VB.Menu", u"mnuFile" };
    menu.children.push_back(FormObject { u"VB.Menu", u"mnuOpen" });
    menu.children.back().Set(u"Caption", u"Ünïcode & more");
    form.children = { button, menu };
    return form;
}

TEST(FormWriter, WritesTheVisualBasicLayout)
{
    FormObject form { u"VB.Form", u"f" };
    form.Set(u"Caption", u"A");
    form.Set(u"BackColor", uint32_t(0xCEDBDE));
    form.Set(u"Enabled", false);
    form.Set(u"Visible", true);
    form.Set(u"AVeryLongPropertyName", int32_t(3));
    EXPECT_EQ(FormWriter::Write(form),
        "VERSION 5.00\n"
        "Begin VB.Form f\n"
        "   Caption         =   \"A\"\n"
        "   BackColor       =   &H00CEDBDE&\n"
        "   Enabled         =   0   'False\n"
        "   Visible         =   -1  'True\n"
        "   AVeryLongPropertyName =   3\n"
        "End\n");
}

TEST(FormWriter, WritesFontsAsPropertyGroups)
{
    FormObject form { u"VB.Form", u"f" };
    Font font;
    font.weight = 700;
    form.Set(u"Font", font);
    EXPECT_EQ(FormWriter::Write(form),
        "VERSION 5.00\n"
        "Begin VB.Form f\n"
        "   BeginProperty Font\n"
        "      Name            =   \"MS Sans Serif\"\n"
        "      Size            =   8.25\n"
        "      Charset         =   0\n"
        "      Weight          =   700\n"
        "      Underline       =   0   'False\n"
        "      Italic          =   0   'False\n"
        "      Strikethrough   =   0   'False\n"
        "   EndProperty\n"
        "End\n");
}

TEST(FormWriter, WhatItWritesReadsBackEqual)
{
    FormObject written = SampleForm();
    FormObject read = FormReader::Read(FormWriter::Write(written));
    ASSERT_EQ(read.children.size(), 2u);
    const FormObject& button = read.children[0];
    EXPECT_EQ(read.Find(u"Caption")->value, Variant(u"Say \"hi\""));
    EXPECT_EQ(button.Find(u"Left")->value.ToDouble(), 120.5);
    EXPECT_EQ(button.Find(u"Font")->value, written.children[0].Find(u"Font")->value);
    EXPECT_EQ(read.children[1].children[0].Find(u"Caption")->value, Variant(u"Ünïcode & more"));
    // Writing the reread form gives the same text: nothing drifts over repeated saves.
    EXPECT_EQ(FormWriter::Write(read), FormWriter::Write(written));
}

TEST(FormWriter, RefusesValuesAFormFileCannotHold)
{
    FormObject form { u"VB.Form", u"f" };
    form.Set(u"Caption", u"two\r\nlines");
    EXPECT_THROW(FormWriter::Write(form), FormLiteralError);
    form.Set(u"Caption", Variant());
    EXPECT_THROW(FormWriter::Write(form), FormLiteralError);
    // A line the reader would refuse: 1,400 characters that take three bytes each in the file
    // (as 1,400 bytes that are not UTF-8 read back), or objects nested past 4,096 columns.
    form.Set(u"Caption", String(1400, u'\xFFFD'));
    EXPECT_THROW(FormWriter::Write(form), FormLiteralError);
    form.Set(u"Caption", String(1300, u'\xFFFD'));
    EXPECT_NO_THROW(FormReader::Read(FormWriter::Write(form)));
    FormObject* inner = &form;
    for (int depth = 0; depth < 1400; ++depth) {
        inner->children.push_back(FormObject { u"VB.Menu", u"mnu" + FromUtf8(std::to_string(depth)) });
        inner = &inner->children.back();
    }
    EXPECT_THROW(FormWriter::Write(form), FormLiteralError);
}

TEST(FormLiteral, WritesCurrencyExactlyAndKeepsDoublesRoundTripping)
{
    EXPECT_EQ(FormatFormLiteral(u"Amount", Currency::FromRaw(-12345)), "-1.2345");
    EXPECT_EQ(FormatFormLiteral(u"Amount", Currency::FromRaw(20000)), "2");
    EXPECT_EQ(ParseFormLiteral(FormatFormLiteral(u"x", 0.1)), Variant(0.1));
    EXPECT_EQ(ParseFormLiteral(FormatFormLiteral(u"x", 1e300)), Variant(1e300));
}

} // namespace
} // namespace tolva
