#pragma once
#include "core/currency.h"
#include "core/font.h"
#include "core/ole_date.h"
#include "core/string.h"
#include <cstdint>
#include <variant>

namespace tolva {

// The values that cross the property bag and the automation boundary.
// Conversions follow the language's coercion rules for the cases the controls use and throw
// TypeMismatch (13) or Overflow (6) as it would.
class Variant {
public:
    using Storage = std::variant<std::monostate, bool, int16_t, int32_t, float, double, Currency,
                                 OleDate, String, Font>;

    Variant() = default;
    Variant(bool v) : m_value(v) {}
    Variant(int16_t v) : m_value(v) {}
    Variant(int32_t v) : m_value(v) {}
    Variant(uint32_t colour) : m_value(int32_t(colour)) {} // colours travel as 32-bit integers
    Variant(float v) : m_value(v) {}
    Variant(double v) : m_value(v) {}
    Variant(Currency v) : m_value(v) {}
    Variant(OleDate v) : m_value(v) {}
    Variant(String v) : m_value(std::move(v)) {}
    Variant(const char16_t* v) : m_value(String(v)) {}
    Variant(Font v) : m_value(std::move(v)) {}

    const Storage& Value() const { return m_value; }
    bool IsEmpty() const { return std::holds_alternative<std::monostate>(m_value); }
    template<typename T> bool Holds() const { return std::holds_alternative<T>(m_value); }

    bool ToBool() const;
    int16_t ToInt16() const;
    int32_t ToInt32() const;
    uint32_t ToColor() const { return uint32_t(ToInt32()); }
    float ToFloat() const;
    double ToDouble() const;
    Currency ToCurrency() const;
    String ToString() const;
    Font ToFont() const; // only a font converts to a font, its size as a font object keeps it

    bool operator==(const Variant&) const = default;

private:
    Storage m_value;
};

} // namespace tolva
