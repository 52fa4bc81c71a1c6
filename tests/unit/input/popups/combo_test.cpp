#include "tests/unit/support/accessible_printing.h"
#include "popup_test_fixture.h"
#include "platform/headless/window_picture.h"

namespace tolva::testing {
namespace {

// A list pop-up 3000 twips wide and 1740 high: its items are 210 twips (14 pixels) high in the
// form's 8-point font, so 8 show.
class ComboTest : public PopupTest {
protected:
    frmCombo& Open(int count, int32_t selected = 0, int32_t top = 1, bool bar = false)
    {
        items = ListBox();
        for (int i = 0; i < count; ++i)
            items.AddItem(u"Item " + Variant(int32_t(i)).ToString());
        frmCombo& list = Load<frmCombo>();
        list.Resize(3000, 1740);
        list.SetParent(&owner);
        list.SetList(&items);
        list.SetTopIndex(top);
        list.SetScrollBarVisible(bar);
        list.SetSelectedItem(selected);
        list.Setup();
        list.Show();
        owner.log.clear();
        return list;
    }
    int16_t Key(frmCombo& list, int16_t key) { return WindowOf(list).KeyDown(key, 0); }

    // The list as shown, a character per row of items: '#' highlighted, '.' not, ' ' empty.
    std::string Rows(frmCombo& list)
    {
        const headless::RasterCanvas picture = headless::WindowPicture(WindowOf(list));
        std::string rows;
        for (int row = 0; row < 8; ++row) {
            const ColorRef back = picture.Pixel(5, 1 + row * 14 + 1);
            const bool text = [&] {
                for (int x = 3; x < 60; ++x)
                    for (int y = 1 + row * 14; y < 15 + row * 14; ++y)
                        if (picture.Pixel(x, y) != back)
                            return true;
                return false;
            }();
            rows += back == picture.SystemColor(13) ? '#' : text ? '.' : ' ';
        }
        return rows;
    }

    ListBox items;
};

// Item 0 is never offered and the last one is one below the count; every key reports, also
// when the highlight stays.
TEST_F(ComboTest, TheKeysSelectWithinTheItems)
{
    struct Case {
        int count;
        int32_t from;
        int16_t key;
        std::string sent;
        int32_t top;
    };
    const Case cases[] = {
        { 10, 8, 40, "SELECT 9", 2 },
        { 10, 9, 40, "SELECT 9", 2 },
        { 10, 1, 38, "SELECT 1", 1 },
        { 10, 0, 38, "SELECT 1", 1 },
        { 25, 3, 34, "SELECT 10", 3 }, // Page Down by the bar's LargeChange, 7
        { 25, 10, 33, "SELECT 3", 1 },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.sent + " from " + std::to_string(c.from));
        frmCombo& list = Open(c.count, c.from, 1, c.count > 10);
        list.TopIndex();
        Key(list, c.key);
        EXPECT_EQ(owner.log, std::vector<std::string> { c.sent });
        EXPECT_EQ(list.TopIndex(), c.top);
    }
}

// The rows from TopIndex with the highlight, the bar over their right-hand ends.
TEST_F(ComboTest, TheListShowsTheItemsFromTopIndexUnderItsScrollBar)
{
    frmCombo& list = Open(25, 12, 6, true);
    EXPECT_EQ(Rows(list), "......#.");
    TolvaScroll& bar = list.ScrollBar();
    EXPECT_EQ(std::vector<int32_t>({ bar.Max(), bar.Value(), bar.LargeChange() }), std::vector<int32_t>({ 17, 6, 7 }));
    EXPECT_TRUE(list.ScrollBarWindow().Visible());
    EXPECT_EQ(list.ScrollBarWindow().Left() + list.ScrollBarWindow().Width(), 3000 - 15);

    // The bar moves the view at the next repaint; its own changes during one are ignored.
    bar.SetValue(16);
    EXPECT_EQ(Rows(list), "......#.");
    EXPECT_EQ(list.TopIndex(), 16);
    EXPECT_EQ(Rows(list), "........");

    frmCombo& few = Open(4, 2);
    EXPECT_EQ(Rows(few), ".#.     ");
}

// The item under the pointer follows a held left button, or every move while the owner tracks
// the selection; a press below the last item takes the last; the release closes the list.
TEST_F(ComboTest, TheMouseSelectsTheItemUnderThePointer)
{
    struct Case {
        bool tracking;
        int16_t button;
        std::vector<std::string> sent;
    };
    const Case cases[] = {
        { false, 0, {} },
        { true, 0, { "SELECT 3" } },
        { false, 1, { "SELECT 3" } },
    };
    for (const Case& c : cases) {
        frmCombo& list = Open(10);
        owner.tracking = c.tracking;
        WindowOf(list).MouseMove(c.button, 0, 200, 2 * 210 + 100);
        EXPECT_EQ(owner.log, c.sent);
    }
    frmCombo& list = Open(6);
    WindowOf(list).MouseDown(1, 0, 200, 1900);
    EXPECT_EQ(owner.log, std::vector<std::string> { "SELECT 5" });
    WindowOf(list).MouseUp(1, 0, 200, 1900);
    EXPECT_EQ(popups.Loaded<frmCombo>(), nullptr);
}

// From the control: Esc after several moves cancels once and brings back the text and item of
// before; Enter keeps the last one chosen.
TEST_F(ComboTest, TheControlFollowsTheListAndEscRestores)
{
    input.SetStyle(tkInputStyles::tkCombo);
    for (const char16_t* item : { u"zero", u"one", u"two", u"three", u"four" })
        input.AddItem(item);
    input.SetListIndex(1);
    PressDropDown();
    frmCombo& list = *popups.Loaded<frmCombo>();
    EXPECT_EQ(list.ListIndex(), 2);
    Key(list, 40);
    Key(list, 40);
    EXPECT_EQ(ToUtf8(input.Text()), "four");
    EXPECT_EQ(input.ListIndex(), 3);
    Key(list, 27);
    EXPECT_EQ(ToUtf8(input.Text()), "one");
    EXPECT_EQ(input.ListIndex(), 1);
    EXPECT_EQ(popups.Loaded<frmCombo>(), nullptr);

    PressDropDown();
    Key(list, 38);
    Key(list, 13);
    EXPECT_EQ(ToUtf8(input.Text()), "one");
    EXPECT_EQ(input.ListIndex(), 0);
    EXPECT_EQ(popups.Loaded<frmCombo>(), nullptr);
}

// Whoever opened a pop-up last is the one it calls; a pop-up never outlives its owner's
// attention: hiding or destroying the owner unloads it.
TEST_F(ComboTest, APopupNeverCallsAGoneOwner)
{
    input.SetStyle(tkInputStyles::tkCombo);
    input.AddItem(u"a");
    input.AddItem(u"b");
    PressDropDown();
    frmCombo& list = *popups.Loaded<frmCombo>();
    {
        headless::HeadlessSurface otherSurface { tree };
        TolvaInput other { otherSurface, site };
        other.InitProperties();
        other.SetStyle(tkInputStyles::tkCombo);
        other.AddItem(u"x");
        other.AddItem(u"y");
        otherSurface.Resize(1500, 285);
        tree.Activate(nullptr); // the press on the other control takes the activation first
        otherSurface.MouseDown(1, 0, 1400, 100);
        EXPECT_EQ(list.Parent(), &other);
        Key(list, 40);
        EXPECT_EQ(ToUtf8(other.Text()), "y");
    }
    EXPECT_EQ(popups.Loaded<frmCombo>(), nullptr);
    EXPECT_EQ(list.Parent(), nullptr);

    PressDropDown();
    inputSurface.Hide();
    EXPECT_EQ(popups.Loaded<frmCombo>(), nullptr);
    EXPECT_EQ(tree.Active(), nullptr);
}

// To screen readers the list is a list of the items from item 1 on, named after its owner; the
// highlight is the selection and the value, and the focus while the list has it.
TEST_F(ComboTest, ReadsAsAListOfTheItemsWhoseHighlightIsSelected)
{
    using namespace AccessibleState;
    frmCombo& list = Open(12, 3);
    EXPECT_EQ(list.Describe(), (AccessibleDescription { u"txtOwner", AccessibleRole::List, Focusable, u"Item 3", u"", u"", {} }));
    ASSERT_EQ(list.ChildCount(), 11);
    EXPECT_EQ(list.Child(2)->Describe(),
        (AccessibleDescription { u"Item 3", AccessibleRole::ListItem, Selectable | Selected | Focused, u"", u"", u"", { 1, 29, 199, 43 } }));
    EXPECT_EQ(list.Child(9)->Describe().state, Selectable | Offscreen);
    EXPECT_EQ(list.Child(11), nullptr);

    WindowOf(list).TakeAnnouncements();
    EXPECT_TRUE(list.Child(4)->Select());
    EXPECT_EQ(owner.log, (std::vector<std::string> { "SELECT 5" }));
    EXPECT_EQ(WindowOf(list).TakeAnnouncements(), (Heard { { AccessibleEvent::Focus, 4 }, { AccessibleEvent::Selection, 4 } }));
}

} // namespace
} // namespace tolva::testing
