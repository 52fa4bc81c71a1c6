#include "core/string.h"

namespace tolva {

namespace {

constexpr char32_t Replacement = 0xFFFD;

void AppendUtf8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += char(c);
    } else if (c < 0x800) {
        out += char(0xC0 | (c >> 6));
        out += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += char(0xE0 | (c >> 12));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    } else {
        out += char(0xF0 | (c >> 18));
        out += char(0x80 | ((c >> 12) & 0x3F));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    }
}

void AppendUtf16(String& out, char32_t c)
{
    if (c < 0x10000) {
        out += char16_t(c);
    } else {
        c -= 0x10000;
        out += char16_t(0xD800 | (c >> 10));
        out += char16_t(0xDC00 | (c & 0x3FF));
    }
}

bool IsHighSurrogate(char32_t c)
{
    return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char32_t c)
{
    return c >= 0xDC00 && c <= 0xDFFF;
}

// Decodes one UTF-8 sequence at text[i], advancing i. Malformed, overlong and surrogate
// encodings give U+FFFD and consume one byte, so that decoding always makes progress.
char32_t DecodeUtf8(std::string_view text, size_t& i)
{
    const auto lead = static_cast<unsigned char>(text[i]);
    int length = 0;
    char32_t c = 0;
    char32_t minimum = 0;
    if (lead < 0x80) {
        ++i;
        return lead;
    } else if ((lead & 0xE0) == 0xC0) {
        length = 2, c = lead & 0x1F, minimum = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3, c = lead & 0x0F, minimum = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4, c = lead & 0x07, minimum = 0x10000;
    } else {
        ++i;
        return Replacement;
    }
    if (i + length > text.size()) {
        ++i;
        return Replacement;
    }
    for (int k = 1; k < length; ++k) {
        const auto next = static_cast<unsigned char>(text[i + k]);
        if ((next & 0xC0) != 0x80) {
            ++i;
            return Replacement;
        }
        c = (c << 6) | (next & 0x3F);
    }
    if (c < minimum || c > 0x10FFFF || IsHighSurrogate(c) || IsLowSurrogate(c)) {
        ++i;
        return Replacement;
    }
    i += length;
    return c;
}

} // namespace

std::string ToUtf8(StringView text)
{
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (IsHighSurrogate(c) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            c = 0x10000 + ((c - 0xD800) << 10) + (char32_t(text[i + 1]) - 0xDC00);
            ++i;
        } else if (IsHighSurrogate(c) || IsLowSurrogate(c)) {
            c = Replacement;
        }
        AppendUtf8(out, c);
    }
    return out;
}

String FromUtf8(std::string_view text)
{
    String out;
    out.reserve(text.size());
    size_t i = 0;
    while (i < text.size())
        AppendUtf16(out, DecodeUtf8(text, i));
    return out;
}

char16_t AsciiLower(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? char16_t(c - u'A' + u'a') : c;
}

bool EqualsIgnoringCase(StringView a, StringView b)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (AsciiLower(a[i]) != AsciiLower(b[i]))
            return false;
    return true;
}

} // namespace tolva
