#pragma once
#include "core/canvas.h"
#include "platform/win32/gdi/gdi_object.h"
#include <vector>

namespace tolva::win32 {

// The fonts, pens and brushes a canvas draws with, made on first request and kept by their
// description, so that a repaint asking a hundred times for the same font makes it once. Fonts and
// pens are selected into the canvas's device context and stay selected until another one is
// asked for. When this goes, the device context gets its own objects back and every object is
// deleted; a kind that reaches its limit is emptied the same way, which bounds what a long-lived
// canvas can hold.
class DrawingObjects {
public:
    static constexpr size_t Limit = 32; // per kind

    explicit DrawingObjects(HDC dc);
    ~DrawingObjects();
    DrawingObjects(const DrawingObjects&) = delete;
    DrawingObjects& operator=(const DrawingObjects&) = delete;

    // False when the system could not make the object; the device context keeps what it had.
    bool SelectFont(const CanvasFont& font);
    bool SelectPen(ColorRef color);
    HBRUSH Brush(ColorRef color);

private:
    template <typename Key, typename Handle> struct Entry {
        Key key;
        GdiObject<Handle> object;
    };
    template <typename Key, typename Handle> struct Kind {
        std::vector<Entry<Key, Handle>> entries;
        HGDIOBJ original = nullptr; // what the device context had before the first selection
        Handle selected = nullptr;
    };

    template <typename Key, typename Handle, typename Make> Handle Find(Kind<Key, Handle>& kind, const Key& key, Make make);
    template <typename Key, typename Handle> bool Select(Kind<Key, Handle>& kind, Handle handle);
    template <typename Key, typename Handle> void Deselect(Kind<Key, Handle>& kind);

    HDC m_dc;
    Kind<CanvasFont, HFONT> m_fonts;
    Kind<ColorRef, HPEN> m_pens;
    Kind<ColorRef, HBRUSH> m_brushes;
};

// Creates the GDI font for a canvas font.
GdiObject<HFONT> CreateCanvasFont(const CanvasFont& font);

} // namespace tolva::win32
