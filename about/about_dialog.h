#pragma once
#include "core/string.h"
#include <cstdint>
#include <vector>

namespace tolva {

// The library's about dialog as the platforms show it: a title, the product name, a version line
// and one close button, placed in dialog units (a quarter of the average character width, an
// eighth of the character height of the dialog font).
class AboutDialog {
public:
    struct Box {
        int16_t x = 0;
        int16_t y = 0;
        int16_t width = 0;
        int16_t height = 0;
    };
    struct TextItem {
        String text;
        Box box;
        bool bold = false;
    };

    static constexpr const char16_t* Version = u"1.0.0";

    String Title() const { return u"About TolvaKit"; }
    // The lines of text, top to bottom.
    std::vector<TextItem> Lines() const;
    String CloseCaption() const { return u"Close"; }
    Box CloseButton() const;
    // The client area that holds the lines and the button with a margin around them.
    Box Client() const;
};

} // namespace tolva
