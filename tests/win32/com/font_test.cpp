// The Font property: one live standard font object per control, followed through its
// notifications, so that `ctl.Font.Bold = True` reaches the control.
#include "core/memory_property_bag.h"
#include "platform/win32/com/font_conversion.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include "tests/win32/support/fake_object.h"
#include "tests/win32/support/font_printing.h"
#include "tests/win32/support/notify_sink.h"
#include <gtest/gtest.h>
#include <olectl.h>

namespace tolva::win32::test {
namespace {

class CommandFont : public testing::Test {
protected:
    ComPtr<IFont> FontProperty()
    {
        OleVariant value;
        EXPECT_EQ(Get(d, L"Font", value), S_OK);
        EXPECT_EQ(V_VT(&value.Get()), VT_DISPATCH);
        return FontOf(value.Get());
    }

    CommandObject command;
    IDispatch* d = command.Dispatch();
};

TEST_F(CommandFont, IsAStandardFontShowingTheControlsFont)
{
    ComPtr<IFont> font = FontProperty();
    ASSERT_TRUE(font);
    // MS Sans Serif 8.25 without a container, as the object was given it. Its getters would
    // report the font Wine realised, which depends on the fonts the machine has.
    EXPECT_EQ(ReadFont(font.Get()), Font());
    EXPECT_EQ(FontProperty().Get(), font.Get()); // the same object every time
}

TEST_F(CommandFont, ChangingTheFontObjectChangesTheControl)
{
    auto notifications = ComPtr<NotifySink>::Adopt(new NotifySink);
    Advise(command.Unknown(), IID_IPropertyNotifySink, notifications.Get());
    ComPtr<IFont> font = FontProperty();
    ASSERT_EQ(font->put_Bold(TRUE), S_OK);
    EXPECT_TRUE(command.Control().GetFont().Bold());
    ASSERT_EQ(font->put_Italic(TRUE), S_OK);
    EXPECT_TRUE(command.Control().GetFont().italic);
    EXPECT_EQ(notifications->changed, (std::vector<DISPID> { 0x68030005, 0x68030005 }));
    EXPECT_EQ(command.As<IPersistStreamInit>(IID_IPersistStreamInit)->IsDirty(), S_OK);
}

TEST_F(CommandFont, BoldThroughTheDispatchInterfaceOfTheFont)
{
    // ctl.Font.Bold = True, as a script writes it.
    OleVariant value;
    Get(d, L"Font", value);
    IDispatch* font = V_DISPATCH(&value.Get());
    ASSERT_EQ(Put(font, L"Bold", Bool(true)), S_OK);
    EXPECT_TRUE(command.Control().GetFont().Bold());
}

TEST_F(CommandFont, SetMakesTheGivenFontTheControlsOwn)
{
    Font arial;
    arial.name = u"Arial";
    arial.size = 14;
    ComPtr<IFont> given = CreateStdFont(arial);
    ASSERT_EQ(Put(d, L"Font", Object(given.As<IDispatch>(IID_IDispatch).Get()), DISPATCH_PROPERTYPUTREF), S_OK);
    EXPECT_EQ(command.Control().GetFont(), arial);
    EXPECT_EQ(FontProperty().Get(), given.Get());
    // Later changes of the given font reach the control, as with VB's shared font object.
    given->put_Underline(TRUE);
    EXPECT_TRUE(command.Control().GetFont().underline);

    // The font it had before no longer does.
    ComPtr<IFont> replaced = CreateStdFont(arial);
    Put(d, L"Font", Object(replaced.As<IDispatch>(IID_IDispatch).Get()), DISPATCH_PROPERTYPUTREF);
    given->put_Strikethrough(TRUE);
    EXPECT_FALSE(command.Control().GetFont().strikethrough);
}

TEST_F(CommandFont, OnlyAFontObjectCanBeSet)
{
    EXPECT_EQ(Put(d, L"Font", Text(L"Arial"), DISPATCH_PROPERTYPUTREF), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(Put(d, L"Font", Object(command.Dispatch()), DISPATCH_PROPERTYPUTREF), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(Put(d, L"Font", Object(nullptr), DISPATCH_PROPERTYPUTREF), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(command.Control().GetFont(), Font());
}

TEST_F(CommandFont, LoadingAnotherFontReplacesTheObject)
{
    ComPtr<IFont> before = FontProperty();
    Font large;
    large.size = 20;
    MemoryPropertyBag bag;
    bag.Set(u"Font", Variant(large));
    command.Object().Load(bag);
    ComPtr<IFont> after = FontProperty();
    EXPECT_NE(after.Get(), before.Get());
    before->put_Bold(TRUE); // the old object is no longer the control's
    EXPECT_FALSE(command.Control().GetFont().Bold());
    after->put_Bold(TRUE);
    EXPECT_TRUE(command.Control().GetFont().Bold());
}

} // namespace
} // namespace tolva::win32::test
