#include "platform/win32/gdi/drawing_objects.h"

namespace tolva::win32 {

GdiObject<HFONT> CreateCanvasFont(const CanvasFont& font)
{
    return GdiObject<HFONT>(CreateFontW(font.height, 0, 0, 0, font.weight, font.italic, font.underline, font.strikeOut,
        font.charSet, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
        reinterpret_cast<const wchar_t*>(font.face.c_str())));
}

DrawingObjects::DrawingObjects(HDC dc)
    : m_dc(dc)
{ }

DrawingObjects::~DrawingObjects()
{
    Deselect(m_fonts);
    Deselect(m_pens);
}

// The most recent entry is searched first: a repaint tends to ask for what it just used.
template <typename Key, typename Handle, typename Make>
Handle DrawingObjects::Find(Kind<Key, Handle>& kind, const Key& key, Make make)
{
    for (auto entry = kind.entries.rbegin(); entry != kind.entries.rend(); ++entry)
        if (entry->key == key)
            return entry->object.Get();
    if (kind.entries.size() >= Limit) {
        Deselect(kind);
        kind.entries.clear();
    }
    GdiObject<Handle> object = make();
    const Handle handle = object.Get();
    if (handle)
        kind.entries.push_back({ key, std::move(object) });
    return handle;
}

template <typename Key, typename Handle> bool DrawingObjects::Select(Kind<Key, Handle>& kind, Handle handle)
{
    if (!handle)
        return false;
    if (handle != kind.selected) {
        HGDIOBJ previous = SelectObject(m_dc, handle);
        if (!kind.original)
            kind.original = previous;
        kind.selected = handle;
    }
    return true;
}

template <typename Key, typename Handle> void DrawingObjects::Deselect(Kind<Key, Handle>& kind)
{
    if (kind.original)
        SelectObject(m_dc, kind.original);
    kind.original = nullptr;
    kind.selected = nullptr;
}

bool DrawingObjects::SelectFont(const CanvasFont& font)
{
    return Select(m_fonts, Find(m_fonts, font, [&] { return CreateCanvasFont(font); }));
}

bool DrawingObjects::SelectPen(ColorRef color)
{
    return Select(m_pens, Find(m_pens, color, [&] { return GdiObject<HPEN>(CreatePen(PS_SOLID, 1, color)); }));
}

HBRUSH DrawingObjects::Brush(ColorRef color)
{
    return Find(m_brushes, color, [&] { return GdiObject<HBRUSH>(CreateSolidBrush(color)); });
}

} // namespace tolva::win32
