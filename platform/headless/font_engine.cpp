#include "platform/headless/font_engine.h"
#include <algorithm>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_SIZES_H
#include FT_TRUETYPE_TABLES_H

namespace tolva::headless {

namespace {

constexpr int32_t MaxPixelsPerEm = 1000;

struct FaceFiles {
    const char* liberation;
    const char* dejaVu;
};

// Weights above 550 take the bold face, as GDI's font mapper does.
FaceFiles FilesFor(const CanvasFont& font)
{
    const bool bold = font.weight > 550;
    if (bold && font.italic)
        return { "LiberationSans-BoldItalic.ttf", "DejaVuSans-BoldOblique.ttf" };
    if (bold)
        return { "LiberationSans-Bold.ttf", "DejaVuSans-Bold.ttf" };
    if (font.italic)
        return { "LiberationSans-Italic.ttf", "DejaVuSans-Oblique.ttf" };
    return { "LiberationSans-Regular.ttf", "DejaVuSans.ttf" };
}

// MulDiv: a * b / c rounded half away from zero.
int64_t MulDiv(int64_t a, int64_t b, int64_t c)
{
    const int64_t product = a * b;
    return (product >= 0 ? product + c / 2 : product - c / 2) / c;
}

// Font units to whole pixels with the face's current scale, as GDI rounds its metrics.
int32_t Scale(FT_Face face, FT_Long units)
{
    return int32_t((FT_MulFix(units, face->size->metrics.y_scale) + 32) >> 6);
}

} // namespace

FontEngine::FontEngine()
{
    if (FT_Init_FreeType(&m_library) != 0)
        m_library = nullptr;
}

FontEngine::~FontEngine()
{
    for (auto& [path, face] : m_faces)
        FT_Done_Face(face);
    if (m_library)
        FT_Done_FreeType(m_library);
}

FontEngine& FontEngine::Shared()
{
    static FontEngine engine;
    return engine;
}

FT_Face FontEngine::Open(const std::string& path)
{
    if (auto found = m_faces.find(path); found != m_faces.end())
        return found->second;
    FT_Face face = nullptr;
    if (!m_library || FT_New_Face(m_library, path.c_str(), 0, &face) != 0)
        return nullptr;
    m_faces.emplace(path, face);
    return face;
}

// The fonts asked for most recently are searched first.
bool FontEngine::Select(const CanvasFont& font)
{
    auto found = std::find_if(
        m_selections.rbegin(), m_selections.rend(), [&](const Selection& selection) { return selection.font == font; });
    if (found == m_selections.rend()) {
        Selection selection;
        if (!Load(font, selection)) {
            m_face = nullptr;
            m_size = nullptr;
            return false;
        }
        if (m_selections.size() >= SelectionLimit)
            m_selections.clear();
        m_selections.push_back(std::move(selection));
        found = m_selections.rbegin();
    }
    if (FT_Activate_Size(found->size) != 0) {
        m_face = nullptr;
        m_size = nullptr;
        return false;
    }
    m_face = found->face;
    m_size = found->size;
    m_metrics = found->metrics;
    return true;
}

bool FontEngine::Load(const CanvasFont& font, Selection& selection)
{
    const FaceFiles files = FilesFor(font);
    FT_Face face = Open(std::string("/usr/share/fonts/truetype/liberation/") + files.liberation);
    if (!face)
        face = Open(std::string("/usr/share/fonts/truetype/dejavu/") + files.dejaVu);
    if (!face)
        return false;

    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
    const auto* post = static_cast<const TT_Postscript*>(FT_Get_Sfnt_Table(face, FT_SFNT_POST));
    const int64_t cellUnits = os2 && os2->usWinAscent + os2->usWinDescent > 0
        ? int64_t(os2->usWinAscent) + os2->usWinDescent
        : int64_t(face->ascender) - face->descender;
    // A positive height is the cell height (ascent plus descent), a negative one the em
    // height; 0 asks for the default, a 16-pixel cell.
    const int64_t height = font.height == 0 ? 16 : font.height;
    const int64_t pixelsPerEm
        = height < 0 ? -height : MulDiv(face->units_per_EM, height, std::max<int64_t>(1, cellUnits));
    FT_Size size = SizeFor(face, unsigned(std::clamp<int64_t>(pixelsPerEm, 1, MaxPixelsPerEm)));
    if (!size || FT_Activate_Size(size) != 0)
        return false;

    Metrics& metrics = selection.metrics;
    metrics.ascent = os2 ? Scale(face, os2->usWinAscent) : Scale(face, face->ascender);
    metrics.descent = os2 ? Scale(face, os2->usWinDescent) : Scale(face, -face->descender);
    if (post) {
        metrics.underlinePosition = Scale(face, post->underlinePosition);
        metrics.underlineThickness = std::max(1, Scale(face, post->underlineThickness));
    }
    if (os2) {
        metrics.strikeoutPosition = Scale(face, os2->yStrikeoutPosition);
        metrics.strikeoutThickness = std::max(1, Scale(face, os2->yStrikeoutSize));
    }
    selection.font = font;
    selection.face = face;
    selection.size = size;
    return true;
}

FT_Size FontEngine::SizeFor(FT_Face face, unsigned pixelsPerEm)
{
    const auto key = std::make_pair(face, pixelsPerEm);
    if (auto found = m_sizes.find(key); found != m_sizes.end())
        return found->second;
    FT_Size size = nullptr;
    if (FT_New_Size(face, &size) != 0)
        return nullptr;
    if (FT_Activate_Size(size) != 0 || FT_Set_Pixel_Sizes(face, 0, pixelsPerEm) != 0) {
        FT_Done_Size(size);
        return nullptr;
    }
    m_sizes.emplace(key, size);
    return size;
}

size_t FontEngine::GlyphKeyHash::operator()(const GlyphKey& key) const
{
    return std::hash<const void*>()(key.size) ^ (size_t(key.character) * 0x9E3779B97F4A7C15ull);
}

// A glyph of the current font, rendered on first use.
const FontEngine::CachedGlyph* FontEngine::Find(char32_t character)
{
    if (!m_face)
        return nullptr;
    const GlyphKey key { m_size, character };
    if (auto found = m_glyphs.find(key); found != m_glyphs.end())
        return &found->second;
    if (FT_Load_Char(m_face, character, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO) != 0)
        return nullptr;
    if (m_glyphs.size() >= GlyphLimit)
        m_glyphs.clear();
    const FT_GlyphSlot slot = m_face->glyph;
    CachedGlyph& cached = m_glyphs[key];
    cached.glyph.advance = int32_t((slot->advance.x + 32) >> 6);
    const FT_Bitmap& bitmap = slot->bitmap;
    if (bitmap.pixel_mode == FT_PIXEL_MODE_MONO && bitmap.buffer && bitmap.pitch > 0) {
        cached.hasImage = true;
        cached.glyph.left = slot->bitmap_left;
        cached.glyph.top = slot->bitmap_top;
        cached.glyph.width = int32_t(bitmap.width);
        cached.glyph.rows = int32_t(bitmap.rows);
        cached.glyph.pitch = bitmap.pitch;
        cached.image.assign(bitmap.buffer, bitmap.buffer + size_t(bitmap.pitch) * bitmap.rows);
        cached.glyph.bits = cached.image.data();
    }
    return &cached;
}

bool FontEngine::Render(char32_t character, Glyph& glyph)
{
    const CachedGlyph* cached = Find(character);
    glyph = cached ? cached->glyph : Glyph();
    return cached && cached->hasImage;
}

int32_t FontEngine::Advance(char32_t character)
{
    const CachedGlyph* cached = Find(character);
    return cached ? cached->glyph.advance : 0;
}

} // namespace tolva::headless
