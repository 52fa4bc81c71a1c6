#pragma once
#include "core/variant.h"
#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/dispatch_member.h"
#include "platform/win32/com/variant_conversion.h"
#include <optional>
#include <type_traits>

namespace tolva::win32 {

// How a C++ type of the core crosses Invoke: its declared type, the conversion of an argument
// and the result it hands back. OleColor is uint32_t, so every uint32_t is a colour.
template <class T> struct OleTraits;

template <> struct OleTraits<bool> {
    static constexpr OleType Type = OleType::Bool;
    static bool From(const VARIANT& v) { return ToBool(v); }
    static void Put(VARIANT& r, bool v) { PutBool(r, v); }
};

template <> struct OleTraits<int16_t> {
    static constexpr OleType Type = OleType::Int16;
    static int16_t From(const VARIANT& v) { return ToInt16(v); }
    static void Put(VARIANT& r, int16_t v) { PutInt16(r, v); }
};

template <> struct OleTraits<int32_t> {
    static constexpr OleType Type = OleType::Int32;
    static int32_t From(const VARIANT& v) { return ToInt32(v); }
    static void Put(VARIANT& r, int32_t v) { PutInt32(r, v); }
};

template <> struct OleTraits<uint32_t> {
    static constexpr OleType Type = OleType::Color;
    static OleColor From(const VARIANT& v) { return ToColor(v); }
    static void Put(VARIANT& r, OleColor v) { PutColor(r, v); }
};

template <> struct OleTraits<float> {
    static constexpr OleType Type = OleType::Float;
    static float From(const VARIANT& v) { return ToFloat(v); }
    static void Put(VARIANT& r, float v) { PutFloat(r, v); }
};

template <> struct OleTraits<double> {
    static constexpr OleType Type = OleType::Double;
    static double From(const VARIANT& v) { return ToDouble(v); }
    static void Put(VARIANT& r, double v) { PutDouble(r, v); }
};

template <> struct OleTraits<Currency> {
    static constexpr OleType Type = OleType::Currency;
    static Currency From(const VARIANT& v) { return ToCurrency(v); }
    static void Put(VARIANT& r, Currency v) { PutCurrency(r, v); }
};

template <> struct OleTraits<OleDate> {
    static constexpr OleType Type = OleType::Date;
    static OleDate From(const VARIANT& v) { return ToDate(v); }
    static void Put(VARIANT& r, OleDate v) { PutDate(r, v); }
};

template <> struct OleTraits<String> {
    static constexpr OleType Type = OleType::String;
    static String From(const VARIANT& v) { return ToText(v); }
    static void Put(VARIANT& r, StringView v) { PutText(r, v); }
};

// A text argument of a StringView parameter: a text passed by value is the caller's own string
// while the call lasts, anything else the value converted to text. A text behind a reference is
// copied: the caller's variable may change inside the call (a handler of an event it raises).
class TextArgumentView {
public:
    TextArgumentView() = default;
    explicit TextArgumentView(const VARIANT& value)
    {
        if (V_VT(&value) == VT_BSTR)
            m_borrowed = ViewOfBstr(V_BSTR(&value));
        else
            m_converted = ToText(value);
    }
    operator StringView() const { return m_borrowed ? *m_borrowed : StringView(m_converted); }

private:
    std::optional<StringView> m_borrowed;
    String m_converted;
};

template <> struct OleTraits<StringView> : OleTraits<String> {
    static TextArgumentView From(const VARIANT& v) { return TextArgumentView(v); }
};

// Any plain value, as the core's Variant (an argument left out is an empty one).
template <> struct OleTraits<Variant> {
    static constexpr OleType Type = OleType::Variant;
    static Variant From(const VARIANT& v) { return ArgumentVariant(v); }
    static void Put(VARIANT& r, const Variant& v) { ToOleVariant(v, r); }
};

// An argument as the caller passed it (what a variant reference refers to), borrowed for the
// call: an object whose identity counts. One left out is empty.
template <> struct OleTraits<VARIANT> {
    static constexpr OleType Type = OleType::Variant;
    static VARIANT From(const VARIANT& v) { return Referenced(v); }
};

// An object handed out: the caller gets a reference of its own.
template <> struct OleTraits<IDispatch*> {
    static constexpr OleType Type = OleType::Object;
    static void Put(VARIANT& r, IDispatch* v)
    {
        V_VT(&r) = VT_DISPATCH;
        V_DISPATCH(&r) = v;
        if (v)
            v->AddRef();
    }
};

// A parameter the caller may leave out: empty then.
template <class T> struct OleTraits<std::optional<T>> {
    static constexpr OleType Type = OleTraits<T>::Type;
    static std::optional<T> From(const VARIANT& v) { return OleTraits<T>::From(v); }
};

template <class T> constexpr bool IsOptional = false;
template <class T> constexpr bool IsOptional<std::optional<T>> = true;

template <class T> using OleTraitsOf = OleTraits<std::remove_cvref_t<T>>;

} // namespace tolva::win32
