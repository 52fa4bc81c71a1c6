#include "host/win32/event_text.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/ole_variant.h"
#include <charconv>

namespace tolva::host {

namespace {

template <class Number> String NumberText(Number value)
{
    char text[32];
    auto [end, ec] = std::to_chars(text, text + sizeof text, value);
    return FromUtf8(std::string_view(text, size_t(end - text)));
}

} // namespace

String ArgumentText(const VARIANT& value)
{
    win32::OleVariant plain;
    if (FAILED(VariantCopyInd(plain.Put(), const_cast<VARIANT*>(&value))))
        return u"?";
    const VARIANT& v = plain.Get();
    switch (V_VT(&v)) {
    case VT_EMPTY:
        return u"Empty";
    case VT_NULL:
        return u"Null";
    case VT_BOOL:
        return V_BOOL(&v) ? u"True" : u"False";
    case VT_I2:
        return NumberText(V_I2(&v));
    case VT_I4:
        return NumberText(V_I4(&v));
    case VT_R4:
        return NumberText(V_R4(&v));
    case VT_R8:
        return NumberText(V_R8(&v));
    case VT_BSTR: {
        String text = u"\"";
        text += win32::FromBstr(V_BSTR(&v));
        text += u'"';
        return text;
    }
    default: {
        win32::OleVariant text;
        if (SUCCEEDED(VariantChangeType(text.Put(), const_cast<VARIANT*>(&v), 0, VT_BSTR)))
            return win32::FromBstr(V_BSTR(&text.Get()));
        return u"?";
    }
    }
}

String EventLine(StringView object, StringView event, std::span<VARIANT*> arguments)
{
    String line(object);
    line += u'_';
    line += event;
    for (size_t i = 0; i < arguments.size(); ++i) {
        line += i == 0 ? u" " : u", ";
        line += ArgumentText(*arguments[i]);
    }
    return line;
}

} // namespace tolva::host
