#include "platform/win32/gdi/drawing_objects.h"
#include <algorithm>
#include <climits>

namespace tolva::win32 {

GdiObject<HFONT> CreateCanvasFont(const CanvasFont& font)
{
    return GdiObject<HFONT>(CreateFontW(font.height, 0, 0, 0, font.weight, font.italic, font.underline, font.strikeOut,
        font.charSet, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
        reinterpret_cast<const wchar_t*>(font.face.c_str())));
}

DrawingObjects::DrawingObjects(const MemoryDc& dc)
    : m_dc(dc)
{ }

// The most recent entry is searched first: a repaint tends to ask for what it just used.
template <typename Key, typename Handle, typename Make>
DrawingObjects::Entry<Key, Handle>* DrawingObjects::Find(Kind<Key, Handle>& kind, const Key& key, Make make)
{
    for (auto entry = kind.entries.rbegin(); entry != kind.entries.rend(); ++entry)
        if (entry->key == key)
            return &*entry;
    if (kind.entries.size() >= Limit) {
        Deselect(kind);
        kind.entries.clear();
    }
    GdiObject<Handle> object = make();
    if (!object)
        return nullptr;
    kind.entries.push_back({ key, std::move(object), {} });
    return &kind.entries.back();
}

template <typename Key, typename Handle> bool DrawingObjects::Select(Kind<Key, Handle>& kind, Handle handle)
{
    if (!handle)
        return false;
    if (handle != kind.selected) {
        HGDIOBJ previous = SelectObject(m_dc.Get(), handle);
        if (!kind.original)
            kind.original = previous;
        kind.selected = handle;
    }
    return true;
}

template <typename Key, typename Handle> void DrawingObjects::Deselect(Kind<Key, Handle>& kind)
{
    if (kind.original)
        SelectObject(m_dc.Get(), kind.original);
    kind.original = nullptr;
    kind.selected = nullptr;
}

bool DrawingObjects::SelectFont(const CanvasFont& font)
{
    auto* entry = Find(m_fonts, font, [&] { return CreateCanvasFont(font); });
    return entry && Select(m_fonts, entry->object.Get());
}

TextExtent DrawingObjects::Measure(const CanvasFont& font, StringView text)
{
    auto* entry = Find(m_fonts, font, [&] { return CreateCanvasFont(font); });
    if (!entry)
        return {};
    const String key(text);
    if (auto known = entry->extents.find(key); known != entry->extents.end())
        return known->second;
    Select(m_fonts, entry->object.Get());
    TextExtent extent;
    if (text.empty()) {
        TEXTMETRICW metrics {};
        GetTextMetricsW(m_dc.Get(), &metrics);
        extent.height = metrics.tmHeight;
    } else {
        SIZE size {};
        GetTextExtentPoint32W(m_dc.Get(), reinterpret_cast<const wchar_t*>(text.data()), int(std::min<size_t>(text.size(), INT_MAX)), &size);
        extent = { size.cx, size.cy };
    }
    if (entry->extents.size() >= 8 * Limit)
        entry->extents.clear();
    entry->extents.emplace(key, extent);
    return extent;
}

bool DrawingObjects::SelectPen(ColorRef color)
{
    auto* entry = Find(m_pens, color, [&] { return GdiObject<HPEN>(CreatePen(PS_SOLID, 1, color)); });
    return entry && Select(m_pens, entry->object.Get());
}

HBRUSH DrawingObjects::Brush(ColorRef color)
{
    auto* entry = Find(m_brushes, color, [&] { return GdiObject<HBRUSH>(CreateSolidBrush(color)); });
    return entry ? entry->object.Get() : nullptr;
}

} // namespace tolva::win32
