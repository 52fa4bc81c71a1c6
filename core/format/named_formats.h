#pragma once
#include "core/string.h"
#include <optional>

namespace tolva {

// The language's named formats. Most stand for a picture in the en-US locale; the general
// number and the general date are conversions of their own, and the three Boolean formats
// name zero and any other number.
enum class NamedFormat {
    GeneralNumber, Currency, Fixed, Standard, Percent, Scientific, YesNo, TrueFalse, OnOff,
    GeneralDate, LongDate, MediumDate, ShortDate, LongTime, MediumTime, ShortTime
};

// The named format the whole expression names, in any case.
std::optional<NamedFormat> FindNamedFormat(StringView expression);

// The picture a named format stands for; empty for the general number, the general date and
// the Boolean formats.
StringView PictureOf(NamedFormat format);

bool IsDateFormat(NamedFormat format);

// The words of the Boolean formats for zero and for any other number.
struct BooleanWords {
    StringView zero, other;
};
std::optional<BooleanWords> BooleanWordsOf(NamedFormat format);

} // namespace tolva
