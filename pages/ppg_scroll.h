#pragma once
#include "pages/property_page.h"
#include <array>

namespace tolva {

// The page of TolvaScroll: SmallChange, LargeChange, Max, Min and Value as text. They are
// applied in that order, because each setter checks against the range current at that moment.
class ppgScroll final : public PropertyPage {
public:
    ppgScroll(Surface& surface, ControlSite& site);

    static constexpr std::array<const char16_t*, 5> Properties { u"SmallChange", u"LargeChange", u"Max", u"Min",
                                                                 u"Value" };
    // The box of Properties[i]: txtSmallChange, txtLargeChange, txtMax, txtMin, txtValue.
    PageTextBox& Box(size_t i) { return *m_boxes[i]; }

private:
    void SelectionChanged() override;
    void ApplyChanges() override;

    std::array<PageTextBox*, 5> m_boxes;
};

} // namespace tolva
