#pragma once
#include "controls/list/tolva_list.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include "tests/unit/support/mouse_event_log.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tolva {

// Records the list's events as text, in the order they were raised; SelectionChanged carries
// the ListIndex it saw.
class ListEventLog final : public KeyAndMouseEventLog<TolvaListEvents> {
public:
    explicit ListEventLog(const TolvaList& list)
        : m_list(list)
    { }
    void SelectionChanged() override { Record("SelectionChanged " + std::to_string(m_list.ListIndex())); }

private:
    const TolvaList& m_list;
};

// A new list of 4500 x 2400 twips (300 x 160 pixels) at run time, with the default font: its
// header is 270 twips high, so 9 rows of 240 twips show, the last one in part.
class ListTest : public ::testing::Test {
protected:
    ListTest()
    {
        list.SetEventListener(&events);
        list.InitProperties();
        surface.Resize(4500, 2400);
        surface.Show();
    }

    const TolvaScroll& Bar() const { return list.ScrollBar(); }
    headless::HeadlessSurface& BarWindow() { return *surface.Children().at(0); }

    // Adds columns of 1200 twips and rows whose cells read "r<row>c<column>".
    void Fill(int32_t columns, int32_t rows)
    {
        for (int32_t c = 1; c <= columns; ++c)
            list.AddColumn(u"Column " + FromUtf8(std::to_string(c)));
        for (int32_t r = 1; r <= rows; ++r) {
            list.AddRow();
            for (int32_t c = 1; c <= columns; ++c)
                list.SetRowText(r, c, FromUtf8("r" + std::to_string(r) + "c" + std::to_string(c)));
        }
    }
    std::string Cell(int32_t row, int32_t column) const { return ToUtf8(list.RowText(row, column)); }
    void ClearLogs()
    {
        events.log.clear();
        site.propertyChanges.clear();
    }

    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    TolvaList list { surface, site };
    ListEventLog events { list };
};

} // namespace tolva
