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

bool FontEngine::Select(const CanvasFont& font)
{
    const FaceFiles files = FilesFor(font);
    FT_Face face = Open(std::string("/usr/share/fonts/truetype/liberation/") + files.liberation);
    if (!face)
        face = Open(std::string("/usr/share/fonts/truetype/dejavu/") + files.dejaVu);
    m_face = face;
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
    if (!ActivateSize(face, unsigned(std::clamp<int64_t>(pixelsPerEm, 1, MaxPixelsPerEm)))) {
        m_face = nullptr;
        return false;
    }

    m_metrics = Metrics();
    m_metrics.ascent = os2 ? Scale(face, os2->usWinAscent) : Scale(face, face->ascender);
    m_metrics.descent = os2 ? Scale(face, os2->usWinDescent) : Scale(face, -face->descender);
    if (post) {
        m_metrics.underlinePosition = Scale(face, post->underlinePosition);
        m_metrics.underlineThickness = std::max(1, Scale(face, post->underlineThickness));
    }
    if (os2) {
        m_metrics.strikeoutPosition = Scale(face, os2->yStrikeoutPosition);
        m_metrics.strikeoutThickness = std::max(1, Scale(face, os2->yStrikeoutSize));
    }
    return true;
}

bool FontEngine::ActivateSize(FT_Face face, unsigned pixelsPerEm)
{
    const auto key = std::make_pair(face, pixelsPerEm);
    if (auto found = m_sizes.find(key); found != m_sizes.end())
        return FT_Activate_Size(found->second) == 0;
    FT_Size size = nullptr;
    if (FT_New_Size(face, &size) != 0)
        return false;
    if (FT_Activate_Size(size) != 0 || FT_Set_Pixel_Sizes(face, 0, pixelsPerEm) != 0) {
        FT_Done_Size(size);
        return false;
    }
    m_sizes.emplace(key, size);
    return true;
}

bool FontEngine::Render(char32_t character, Glyph& glyph)
{
    glyph = Glyph();
    if (!m_face || FT_Load_Char(m_face, character, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO) != 0)
        return false;
    const FT_GlyphSlot slot = m_face->glyph;
    glyph.advance = int32_t((slot->advance.x + 32) >> 6);
    if (slot->bitmap.pixel_mode != FT_PIXEL_MODE_MONO || !slot->bitmap.buffer || slot->bitmap.pitch <= 0)
        return false;
    glyph.left = slot->bitmap_left;
    glyph.top = slot->bitmap_top;
    glyph.width = int32_t(slot->bitmap.width);
    glyph.rows = int32_t(slot->bitmap.rows);
    glyph.pitch = slot->bitmap.pitch;
    glyph.bits = slot->bitmap.buffer;
    return true;
}

int32_t FontEngine::Advance(char32_t character)
{
    if (!m_face || FT_Load_Char(m_face, character, FT_LOAD_DEFAULT | FT_LOAD_TARGET_MONO) != 0)
        return 0;
    return int32_t((m_face->glyph->advance.x + 32) >> 6);
}

} // namespace tolva::headless
