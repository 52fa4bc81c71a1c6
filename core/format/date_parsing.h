#pragma once
#include "core/ole_date.h"
#include "core/string.h"
#include <optional>

namespace tolva {

// Text read as a date and time the way the en-US locale's conversion reads it: numeric dates
// month first ("1/2/2003", "1-2-03"), the year first when it has four digits ("2003-01-02"),
// the day first when the month could not be one ("13/1/2003"), month names and their
// abbreviations in any order with the numbers ("January 2, 2003", "2 Jan 2003"), day names
// (ignored), two-digit years 30 to 99 as 1930 to 1999 and 00 to 29 as 2000 to 2029, and a
// time (hours, minutes, seconds, AM or PM). A date without a year is in today's year; a time
// alone is on day 0. Nothing when the text is not such a date.
std::optional<OleDate> ParseLocaleDate(StringView text, OleDate today);

} // namespace tolva
