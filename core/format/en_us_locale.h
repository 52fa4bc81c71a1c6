#pragma once
#include "core/string.h"

namespace tolva::en_us {

// The names and patterns of the en-US locale the portable formatter works in.
StringView MonthName(int month); // 1 = "January"
StringView MonthAbbreviation(int month); // 1 = "Jan"
StringView DayName(int weekday); // 1 = "Sunday"
StringView DayAbbreviation(int weekday); // 1 = "Sun"

constexpr StringView Am = u"AM";
constexpr StringView Pm = u"PM";
constexpr char16_t DateSeparator = u'/';
constexpr char16_t TimeSeparator = u':';

// The locale's date and time patterns, written as format pictures.
constexpr StringView ShortDate = u"m/d/yyyy";
constexpr StringView LongDate = u"dddd, mmmm d, yyyy";
constexpr StringView LongTime = u"h:nn:ss AMPM";

} // namespace tolva::en_us
