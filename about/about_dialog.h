#pragma once
#include "core/string.h"
#include <cstdint>
#include <vector>

namespace tolva {

// The library's about dialog as the platforms show it: a title, the product name, a version
// line, the toolbox image of each control of the library in a row, and one close button, placed
// in dialog units (a quarter of the average character width, an eighth of the character height
// of the dialog font).
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
    struct ImageItem {
        String control; // the class whose toolbox image goes there
        Box box;
    };

    static constexpr const char16_t* Version = u"" TOLVA_VERSION; // the project's version

    // controls: the classes whose images the dialog shows, in order.
    explicit AboutDialog(std::vector<String> controls = {});

    String Title() const { return u"About TolvaKit"; }
    // The lines of text, top to bottom.
    std::vector<TextItem> Lines() const;
    // One image per control, left to right below the lines.
    std::vector<ImageItem> Images() const;
    String CloseCaption() const { return u"Close"; }
    Box CloseButton() const;
    // The client area that holds the lines, the images and the button with a margin around them.
    Box Client() const;

private:
    int16_t ImagesBottom() const;

    std::vector<String> m_controls;
};

} // namespace tolva
