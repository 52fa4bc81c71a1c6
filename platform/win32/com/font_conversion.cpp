#include "platform/win32/com/font_conversion.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/std_font_stream.h"
#include <cmath>

namespace tolva::win32 {

ComPtr<IFont> CreateStdFont(const Font& font)
{
    FONTDESC desc = {};
    desc.cbSizeofstruct = sizeof(desc);
    desc.lpstrName = const_cast<LPOLESTR>(WidePointer(font.name));
    desc.cySize.int64 = std::llround(font.size * 10000.0);
    desc.sWeight = SHORT(font.weight);
    desc.sCharset = SHORT(font.charset);
    desc.fItalic = font.italic;
    desc.fUnderline = font.underline;
    desc.fStrikethrough = font.strikethrough;
    ComPtr<IFont> result;
    ThrowIfFailed(OleCreateFontIndirect(&desc, IID_IFont, result.PutVoid()));
    return result;
}

namespace {

// The attributes as the font's getters report them.
Font ReadFontProperties(IFont* font)
{
    Font result;
    Bstr name;
    if (SUCCEEDED(font->get_Name(name.Put())))
        result.name = FromBstr(name.Get());
    // A size reported outside what a standard font keeps is taken at the nearer end, as the
    // control could not save it otherwise.
    CY size = {};
    if (SUCCEEDED(font->get_Size(&size)))
        result.size = KeptFontSize(double(size.int64) / 10000.0);
    SHORT weight = 0;
    if (SUCCEEDED(font->get_Weight(&weight)))
        result.weight = weight;
    SHORT charset = 0;
    if (SUCCEEDED(font->get_Charset(&charset)))
        result.charset = charset;
    BOOL flag = FALSE;
    if (SUCCEEDED(font->get_Italic(&flag)))
        result.italic = flag != FALSE;
    if (SUCCEEDED(font->get_Underline(&flag)))
        result.underline = flag != FALSE;
    if (SUCCEEDED(font->get_Strikethrough(&flag)))
        result.strikethrough = flag != FALSE;
    return result;
}

// The record keeps the name in the ANSI code page, which may have replaced characters. The name
// the font reports is the one it was given when the two agree there. A clone is asked: a font
// that reports its name realises itself first, and Wine's reports the realised face and charset
// from then on, in its record too.
String GivenName(IFont* font, const StdFontRecord& record)
{
    ComPtr<IFont> clone;
    Bstr name;
    if (SUCCEEDED(font->Clone(clone.Put())) && clone && SUCCEEDED(clone->get_Name(name.Put()))) {
        String reported = FromBstr(name.Get());
        if (ToAnsi(reported) == record.ansiName)
            return reported;
    }
    return record.font.name;
}

} // namespace

Font ReadFont(IFont* font)
{
    std::optional<StdFontRecord> record = SaveStdFontStream(font);
    if (!record)
        return ReadFontProperties(font);
    Font result = record->font;
    result.name = GivenName(font, *record);
    return result;
}

ComPtr<IFont> FontOf(const VARIANT& value)
{
    const VARIANT* v = &value;
    if (V_VT(v) == (VT_BYREF | VT_VARIANT))
        v = V_VARIANTREF(v);
    if (!v)
        return {};
    IUnknown* object = nullptr;
    switch (V_VT(v)) {
    case VT_DISPATCH:
        object = V_DISPATCH(v);
        break;
    case VT_UNKNOWN:
        object = V_UNKNOWN(v);
        break;
    case VT_BYREF | VT_DISPATCH:
        object = V_DISPATCHREF(v) ? *V_DISPATCHREF(v) : nullptr;
        break;
    case VT_BYREF | VT_UNKNOWN:
        object = V_UNKNOWNREF(v) ? *V_UNKNOWNREF(v) : nullptr;
        break;
    default:
        break;
    }
    return ComPtr<IUnknown>(object).As<IFont>(IID_IFont);
}

} // namespace tolva::win32
