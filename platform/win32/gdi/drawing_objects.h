#pragma once
#include "core/canvas.h"
#include "platform/win32/gdi/gdi_object.h"
#include "platform/win32/gdi/memory_dc.h"
#include <unordered_map>
#include <vector>

namespace tolva::win32 {

// The fonts, pens and brushes a canvas draws with, made on first request and kept by their
// description, so that a repaint asking a hundred times for the same font makes it once; with
// each font the extents of the texts measured in it. Fonts and pens are selected into the
// canvas's device context and stay selected until another one is asked for. The device context
// must be deleted before this goes (which frees what is selected in it), so that nothing is
// selected back only to be deleted. A kind that reaches its limit gives the device context its
// own object back and is emptied, which bounds what a long-lived canvas can hold.
class DrawingObjects {
public:
    static constexpr size_t Limit = 32; // per kind, and texts measured per font (times 8)

    // dc is read on each call, so it may be made after this.
    explicit DrawingObjects(const MemoryDc& dc);
    DrawingObjects(const DrawingObjects&) = delete;
    DrawingObjects& operator=(const DrawingObjects&) = delete;

    // False when the system could not make the object; the device context keeps what it had.
    bool SelectFont(const CanvasFont& font);
    // The extent of a text in a font, measured (font selected) the first time it is asked for.
    TextExtent Measure(const CanvasFont& font, StringView text);
    bool SelectPen(ColorRef color);
    HBRUSH Brush(ColorRef color);

private:
    template <typename Key, typename Handle> struct Entry {
        Key key;
        GdiObject<Handle> object;
        std::unordered_map<String, TextExtent> extents; // fonts only
    };
    template <typename Key, typename Handle> struct Kind {
        std::vector<Entry<Key, Handle>> entries;
        HGDIOBJ original = nullptr; // what the device context had before the first selection
        Handle selected = nullptr;
    };

    template <typename Key, typename Handle, typename Make>
    Entry<Key, Handle>* Find(Kind<Key, Handle>& kind, const Key& key, Make make);
    template <typename Key, typename Handle> bool Select(Kind<Key, Handle>& kind, Handle handle);
    template <typename Key, typename Handle> void Deselect(Kind<Key, Handle>& kind);

    const MemoryDc& m_dc;
    Kind<CanvasFont, HFONT> m_fonts;
    Kind<ColorRef, HPEN> m_pens;
    Kind<ColorRef, HBRUSH> m_brushes;
};

// Creates the GDI font for a canvas font.
GdiObject<HFONT> CreateCanvasFont(const CanvasFont& font);

} // namespace tolva::win32
