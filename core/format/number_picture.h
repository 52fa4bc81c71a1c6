#pragma once
#include "core/decimal_text.h"
#include "core/format/picture_lexer.h"

namespace tolva {

// A section of a number picture, read once: digit placeholders ("0" shows a digit or 0, "#" a
// digit or nothing), the decimal point, "," as the thousands separator between whole-number
// placeholders or, right before the point or at the end of the whole part, as a division by
// 1,000, "%" (times 100), an exponent (E+ E- e+ e-, with its own placeholders), and literal
// text anywhere, kept in place.
class NumberPicture {
public:
    explicit NumberPicture(const PictureSection& section);

    // The number laid into the picture. A minus sign, when asked for, goes right before the
    // first digit or point shown ("$-1,234.50"), or first when the picture shows none.
    String Format(const DecimalText& magnitude, bool minusSign) const;

private:
    struct Part {
        PictureItem item;
        enum class Role { Literal, Digit, Point, ExponentMark, ExponentDigit } role = Role::Literal;
    };

    // The digits each whole-number placeholder shows: the leftmost takes the surplus.
    std::vector<std::string> SpreadWhole(const std::string& digits) const;
    DecimalText Mantissa(const DecimalText& number, int32_t& exponent) const;

    std::vector<Part> m_parts;
    int32_t m_wholePlaceholders = 0;
    int32_t m_requiredWholeDigits = 0; // from the first "0" before the point
    int32_t m_fractionPlaceholders = 0;
    int32_t m_requiredFractionDigits = 0; // up to the last "0" after the point
    int32_t m_exponentDigits = 0;
    bool m_exponentPlus = false;
    bool m_grouping = false;
    int32_t m_scale = 0; // powers of ten: +2 per "%", -3 per scaling ","
};

} // namespace tolva
