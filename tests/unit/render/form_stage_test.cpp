#include "tools/render/form_stage.h"
#include "host/form/form_reader.h"
#include "host/form/form_syntax_error.h"
#include <gtest/gtest.h>

namespace tolva::render {
namespace {

constexpr ColorRef Blue = 0xFF0000, Green = 0x00FF00;

// A 200 x 100 pixel form in blue with a green button at (10, 10), 100 x 30 pixels, and a hidden
// one where the right half is.
constexpr const char* Form = R"(VERSION 5.00
Begin VB.Form frmTest
   ClientWidth     =   3000
   ClientHeight    =   1500
   BackColor       =   &H00FF0000&
   Begin TolvaKit.TolvaCommand cmdShown
      Left            =   150
      Top             =   150
      Width           =   1500
      Height          =   450
      BackColor       =   &H0000FF00&
      BackColorActive =   &H0000FF00&
   End
   Begin TolvaKit.TolvaCommand cmdHidden
      Left            =   1650
      Top             =   0
      Width           =   1350
      Height          =   1500
      Visible         =   0   'False
   End
   Begin VB.Menu mnuFile
      Caption         =   "File"
   End
End
)";

TEST(FormStage, PlacesTheVisibleControlsOnTheFormsBackColour)
{
    const headless::RasterCanvas picture = FormStage(FormReader::Read(Form)).Picture();
    ASSERT_EQ(picture.Width(), 200);
    ASSERT_EQ(picture.Height(), 100);
    EXPECT_EQ(picture.Pixel(5, 5), Blue);
    EXPECT_EQ(picture.Pixel(109, 39), picture.Pixel(10, 10)) << "the button's frame";
    EXPECT_NE(picture.Pixel(10, 10), Blue);
    EXPECT_EQ(picture.Pixel(15, 15), Green) << "the button's face";
    EXPECT_EQ(picture.Pixel(111, 20), Blue);
    EXPECT_EQ(picture.Pixel(150, 50), Blue) << "the hidden button";
}

TEST(FormStage, RefusesWhatTheFormHostRefusesWithItsLine)
{
    struct Refused {
        const char* form;
        int line;
    };
    for (const Refused& refused : {
             Refused { "Begin VB.Form f\n Begin VB.TextBox t\n End\nEnd\n", 2 },
             Refused { "Begin VB.Form f\n Begin TolvaKit.TolvaGauge g\n End\nEnd\n", 2 },
             Refused { "Begin VB.Form f\n ClientWidth = \"wide\"\nEnd\n", 2 },
             Refused { "Begin VB.Form f\n Begin TolvaKit.TolvaLabel l\n  Left = \"x\"\n End\nEnd\n", 3 },
         }) {
        try {
            FormStage stage(FormReader::Read(refused.form));
            ADD_FAILURE() << "accepted: " << refused.form;
        } catch (const FormSyntaxError& error) {
            EXPECT_EQ(error.Line(), refused.line) << refused.form;
        }
    }
}

} // namespace
} // namespace tolva::render
