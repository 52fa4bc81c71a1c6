#pragma once
#include "core/canvas.h"
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

struct FT_LibraryRec_;
struct FT_FaceRec_;
struct FT_SizeRec_;

namespace tolva::headless {

// FreeType faces for the raster canvas, opened once per file and kept for the life of the
// engine, with one size object per face and pixel size: switching between two sizes (a caption
// drawn in one font and measured in another) then does not run the font's hinting program again.
// The fonts asked for and the glyphs rendered are kept too (a bounded number of each), so that a
// repaint costs layout and drawing, not rasterising the same glyph again. Every face name maps
// to Liberation Sans (DejaVu Sans when it is missing), the file chosen by weight and italic; sizes
// follow the GDI convention of CanvasFont, metrics are those GDI derives from the font's tables.
// Glyphs are rendered in monochrome, without anti-aliasing, so that pixels are exact.
class FontEngine {
public:
    struct Metrics {
        int32_t ascent = 0;
        int32_t descent = 0;
        int32_t underlinePosition = 0; // above the baseline; negative below it
        int32_t underlineThickness = 1;
        int32_t strikeoutPosition = 0;
        int32_t strikeoutThickness = 1;
    };

    // One glyph's one-bit image, the most significant bit of each byte leftmost. The bits stay
    // valid until the next Render or Select.
    struct Glyph {
        int32_t left = 0; // from the pen position to the image's first column
        int32_t top = 0; // from the baseline up to the image's first row
        int32_t width = 0;
        int32_t rows = 0;
        int32_t pitch = 0;
        const unsigned char* bits = nullptr;
        int32_t advance = 0;
    };

    FontEngine();
    ~FontEngine();
    FontEngine(const FontEngine&) = delete;
    FontEngine& operator=(const FontEngine&) = delete;

    // The engine every raster canvas of the process shares.
    static FontEngine& Shared();

    // How canvases treat text while a scene is drawn to find where its text is: hidden text draws
    // nothing while every measure stays the same; widening adds that many pixels to the measure of
    // each character, which moves whatever the text's size places (a centred caption, a glyph
    // after it).
    struct TextProbe {
        bool hidden = false;
        int32_t widening = 0;
    };
    void SetTextProbe(TextProbe probe) { m_probe = probe; }
    const TextProbe& Probe() const { return m_probe; }

    // Makes the font current; false when no font file could be opened.
    bool Select(const CanvasFont& font);
    const Metrics& Current() const { return m_metrics; }
    // Renders a character of the current font; false when it has no image (a space has none
    // but still its advance).
    bool Render(char32_t character, Glyph& glyph);
    int32_t Advance(char32_t character);

private:
    // A font as it was made current: its face, size object and metrics.
    struct Selection {
        CanvasFont font;
        FT_FaceRec_* face = nullptr;
        FT_SizeRec_* size = nullptr;
        Metrics metrics;
    };
    struct CachedGlyph {
        Glyph glyph; // bits point into image
        std::vector<unsigned char> image;
        bool hasImage = false;
    };
    struct GlyphKey {
        FT_SizeRec_* size;
        char32_t character;
        bool operator==(const GlyphKey&) const = default;
    };
    struct GlyphKeyHash {
        size_t operator()(const GlyphKey& key) const;
    };
    static constexpr size_t SelectionLimit = 64;
    static constexpr size_t GlyphLimit = 16384;

    bool Load(const CanvasFont& font, Selection& selection);
    FT_FaceRec_* Open(const std::string& path);
    FT_SizeRec_* SizeFor(FT_FaceRec_* face, unsigned pixelsPerEm);
    const CachedGlyph* Find(char32_t character);

    FT_LibraryRec_* m_library = nullptr;
    std::map<std::string, FT_FaceRec_*> m_faces;
    std::map<std::pair<FT_FaceRec_*, unsigned>, FT_SizeRec_*> m_sizes; // released with their face
    std::vector<Selection> m_selections;
    std::unordered_map<GlyphKey, CachedGlyph, GlyphKeyHash> m_glyphs;
    FT_FaceRec_* m_face = nullptr; // of the current font; null when none could be made current
    FT_SizeRec_* m_size = nullptr;
    Metrics m_metrics;
    TextProbe m_probe;
};

} // namespace tolva::headless
