#include "platform/win32/com/font_conversion.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
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

Font ReadFont(IFont* font)
{
    Font result;
    Bstr name;
    if (SUCCEEDED(font->get_Name(name.Put())))
        result.name = FromBstr(name.Get());
    CY size = {};
    if (SUCCEEDED(font->get_Size(&size)))
        result.size = double(size.int64) / 10000.0;
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

ComPtr<IFont> FontOf(const VARIANT& value)
{
    const VARIANT* v = &value;
    if (V_VT(v) == (VT_BYREF | VT_VARIANT))
        v = V_VARIANTREF(v);
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
