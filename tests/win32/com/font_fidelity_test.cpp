// A font put into a control comes back out as it was put in: through the property bag, the
// stream and the Font property. Wine's standard font reports the font it realised instead
// (Tahoma as another face, 9 pt rounded to whole pixels, the face's charset), and keeps that
// face once asked; none of it may reach what the control saves.
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/font_conversion.h"
#include "platform/win32/com/std_font_stream.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/fake_client_site.h"
#include "tests/win32/support/font_printing.h"
#include "tests/win32/support/recording_property_bag.h"
#include <gtest/gtest.h>
#include <olectl.h>

namespace tolva::win32::test {
namespace {

Font Tahoma9Bold()
{
    Font font;
    font.name = u"Tahoma";
    font.size = 9;
    font.weight = 700;
    return font;
}

// What the font object was given, read without asking its getters.
Font Recorded(IFont* font)
{
    auto record = SaveStdFontStream(font);
    return record ? record->font : Font();
}

// Asks a font object everything a client might, which makes Wine's realise it.
void AskEverything(IFont* font)
{
    Bstr name;
    CY size = {};
    SHORT number = 0;
    BOOL flag = FALSE;
    font->get_Name(name.Put());
    font->get_Size(&size);
    font->get_Charset(&number);
    font->get_Weight(&number);
    font->get_Bold(&flag);
}

class FontFidelity : public testing::Test {
protected:
    void SetFont(CommandObject& object, const Font& font)
    {
        ComPtr<IFont> given = CreateStdFont(font);
        ASSERT_EQ(
            Put(object.Dispatch(), L"Font", Object(given.As<IDispatch>(IID_IDispatch).Get()), DISPATCH_PROPERTYPUTREF),
            S_OK);
    }
    ComPtr<IFont> FontProperty(const CommandObject& object)
    {
        OleVariant value;
        EXPECT_EQ(Get(object.Dispatch(), L"Font", value), S_OK);
        return FontOf(value.Get());
    }

    CommandObject command;
};

// Also with a name of characters of the code page beyond ASCII.
TEST_F(FontFidelity, AFontObjectIsReadAsItWasGivenAndLeftSo)
{
    Font given = Tahoma9Bold();
    given.charset = 1; // DEFAULT_CHARSET, which a realised font never reports
    given.underline = true;
    Font accented = Tahoma9Bold();
    accented.name = u"Fa\u00e7ade Sans";
    for (const Font& font : { given, accented }) {
        ComPtr<IFont> object = CreateStdFont(font);
        EXPECT_EQ(ReadFont(object.Get()), font);
        EXPECT_EQ(ReadFont(object.Get()), font);
        EXPECT_EQ(Recorded(object.Get()), font); // reading did not make it realise itself
    }
}

TEST_F(FontFidelity, Tahoma9BoldSurvivesThePropertyBag)
{
    SetFont(command, Tahoma9Bold());
    auto bag = ComPtr<RecordingPropertyBag>::Adopt(new RecordingPropertyBag);
    ASSERT_EQ(command.As<IPersistPropertyBag>(IID_IPersistPropertyBag)->Save(bag.Get(), TRUE, FALSE), S_OK);
    const VARIANT* saved = bag->Find(L"Font");
    ASSERT_NE(saved, nullptr);
    ComPtr<IFont> savedFont = FontOf(*saved);
    ASSERT_TRUE(savedFont);
    EXPECT_EQ(Recorded(savedFont.Get()), Tahoma9Bold());

    CommandObject loaded;
    ASSERT_EQ(loaded.As<IPersistPropertyBag>(IID_IPersistPropertyBag)->Load(bag.Get(), nullptr), S_OK);
    EXPECT_EQ(loaded.Control().GetFont(), Tahoma9Bold());
}

TEST_F(FontFidelity, Tahoma9BoldSurvivesTheStream)
{
    SetFont(command, Tahoma9Bold());
    AskEverything(FontProperty(command).Get());
    ComPtr<IStream> stream;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Put()), S_OK);
    ASSERT_EQ(command.As<IPersistStreamInit>(IID_IPersistStreamInit)->Save(stream.Get(), TRUE), S_OK);
    const LARGE_INTEGER start = {};
    stream->Seek(start, STREAM_SEEK_SET, nullptr);

    CommandObject loaded;
    ASSERT_EQ(loaded.As<IPersistStreamInit>(IID_IPersistStreamInit)->Load(stream.Get()), S_OK);
    EXPECT_EQ(loaded.Control().GetFont(), Tahoma9Bold());
    EXPECT_EQ(Recorded(FontProperty(loaded).Get()), Tahoma9Bold());
}

TEST_F(FontFidelity, TheFontPropertyGivesAndTakesTheFontAsItWas)
{
    SetFont(command, Tahoma9Bold());
    EXPECT_EQ(command.Control().GetFont(), Tahoma9Bold());
    EXPECT_EQ(ReadFont(FontProperty(command).Get()), Tahoma9Bold());

    // A control given another control's font object takes what it shows.
    CommandObject other;
    ComPtr<IFont> shared = FontProperty(command);
    ASSERT_EQ(
        Put(other.Dispatch(), L"Font", Object(shared.As<IDispatch>(IID_IDispatch).Get()), DISPATCH_PROPERTYPUTREF),
        S_OK);
    EXPECT_EQ(other.Control().GetFont(), Tahoma9Bold());
}

TEST_F(FontFidelity, WhatTheFontObjectRealisedNeverReachesTheControl)
{
    SetFont(command, Tahoma9Bold());
    ComPtr<IFont> font = FontProperty(command);
    AskEverything(font.Get());
    ASSERT_EQ(font->put_Underline(TRUE), S_OK);
    Font expected = Tahoma9Bold();
    expected.underline = true;
    EXPECT_EQ(command.Control().GetFont(), expected);
    ASSERT_EQ(font->put_Bold(FALSE), S_OK);
    expected.weight = 400;
    EXPECT_EQ(command.Control().GetFont(), expected);
}

TEST_F(FontFidelity, NameSizeAndCharsetSetThroughTheFontObjectAreTakenAsSet)
{
    SetFont(command, Tahoma9Bold());
    ComPtr<IFont> font = FontProperty(command);
    AskEverything(font.Get());
    Bstr verdana(u"Verdana");
    ASSERT_EQ(font->put_Name(verdana.Get()), S_OK);
    CY size = {};
    size.int64 = 105000;
    ASSERT_EQ(font->put_Size(size), S_OK);
    AskEverything(font.Get());
    ASSERT_EQ(font->put_Charset(2), S_OK);
    Font expected = Tahoma9Bold();
    expected.name = u"Verdana";
    expected.size = 10.5;
    expected.charset = 2;
    EXPECT_EQ(command.Control().GetFont(), expected);
}

TEST_F(FontFidelity, TheAmbientFontIsTakenAsTheContainerGaveIt)
{
    auto site = ComPtr<FakeClientSite>::Adopt(new FakeClientSite);
    ComPtr<IFont> ambient = CreateStdFont(Tahoma9Bold());
    site->Ambients().AddObject(DISPID_AMBIENT_FONT, L"Font", ambient.As<IDispatch>(IID_IDispatch).Get());
    command.Object().Site().SetClientSite(site.Get());
    auto persist = command.As<IPersistPropertyBag>(IID_IPersistPropertyBag);
    // A new control, and one loaded from a bag without a Font key.
    for (bool loaded : { false, true }) {
        auto bag = ComPtr<RecordingPropertyBag>::Adopt(new RecordingPropertyBag);
        ASSERT_EQ(loaded ? persist->Load(bag.Get(), nullptr) : persist->InitNew(), S_OK);
        EXPECT_EQ(command.Control().GetFont(), Tahoma9Bold());
        // Read again on saving, the container's font is still what the control has: no Font key.
        ASSERT_EQ(persist->Save(bag.Get(), TRUE, FALSE), S_OK);
        EXPECT_EQ(bag->Find(L"Font"), nullptr);
    }
    command.Object().Site().SetClientSite(nullptr);
}

} // namespace
} // namespace tolva::win32::test
