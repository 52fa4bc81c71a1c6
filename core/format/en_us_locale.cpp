#include "core/format/en_us_locale.h"

namespace tolva::en_us {

namespace {

constexpr StringView Months[] = { u"January", u"February", u"March", u"April", u"May", u"June", u"July",
    u"August", u"September", u"October", u"November", u"December" };
constexpr StringView Days[] = { u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday" };

} // namespace

StringView MonthName(int month)
{
    return Months[month - 1];
}

StringView MonthAbbreviation(int month)
{
    return Months[month - 1].substr(0, 3);
}

StringView DayName(int weekday)
{
    return Days[weekday - 1];
}

StringView DayAbbreviation(int weekday)
{
    return Days[weekday - 1].substr(0, 3);
}

} // namespace tolva::en_us
