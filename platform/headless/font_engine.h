#pragma once
#include "core/canvas.h"
#include <map>
#include <string>

struct FT_LibraryRec_;
struct FT_FaceRec_;
struct FT_SizeRec_;

namespace tolva::headless {

// FreeType faces for the raster canvas, opened once per file and kept for the life of the
// engine, with one size object per face and pixel size: switching between two sizes (a caption
// drawn in one font and measured in another) then does not run the font's hinting program again. Every face name maps to Liberation Sans (DejaVu Sans when it is missing), the file
// chosen by weight and italic; sizes follow the GDI convention of CanvasFont, metrics are those
// GDI derives from the font's tables. Glyphs are rendered in monochrome, without anti-aliasing,
// so that pixels are exact.
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
    // valid until the next Render.
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

    // Makes the font current; false when no font file could be opened.
    bool Select(const CanvasFont& font);
    const Metrics& Current() const { return m_metrics; }
    // Renders a character of the current font; false when it has no image (a space has none
    // but still its advance).
    bool Render(char32_t character, Glyph& glyph);
    int32_t Advance(char32_t character);

private:
    FT_FaceRec_* Open(const std::string& path);
    bool ActivateSize(FT_FaceRec_* face, unsigned pixelsPerEm);

    FT_LibraryRec_* m_library = nullptr;
    std::map<std::string, FT_FaceRec_*> m_faces;
    std::map<std::pair<FT_FaceRec_*, unsigned>, FT_SizeRec_*> m_sizes; // released with their face
    FT_FaceRec_* m_face = nullptr;
    Metrics m_metrics;
};

} // namespace tolva::headless
