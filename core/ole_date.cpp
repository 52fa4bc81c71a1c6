#include "core/ole_date.h"
#include "core/automation_error.h"
#include <cmath>
#include <cstdint>

namespace tolva {

namespace {

// Serials of 1 January 100 and of the day after 31 December 9999.
constexpr int64_t FirstDay = -657434;
constexpr int64_t EndDay = 2958466;
constexpr int SecondsPerDay = 86400;

// Days from 1 March of year 0 of the proleptic Gregorian calendar, by whole 400-year eras.
constexpr int64_t DaysFromCivil(int64_t year, int64_t month, int64_t day)
{
    year -= month <= 2;
    const int64_t era = (year >= 0 ? year : year - 399) / 400;
    const int64_t yearOfEra = year - era * 400;
    const int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra;
}

void CivilFromDays(int64_t days, int& year, int& month, int& day)
{
    const int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const int64_t dayOfEra = days - era * 146097;
    const int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int64_t shiftedMonth = (5 * dayOfYear + 2) / 153;
    day = int(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
    month = int(shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9);
    year = int(yearOfEra + era * 400 + (month <= 2));
}

constexpr int64_t SerialEpoch = DaysFromCivil(1899, 12, 30);

} // namespace

OleDate OleDate::FromYmd(int year, int month, int day)
{
    // Keeps the arithmetic below far from overflow; such years fail the range test anyway.
    if (year < -1000000 || year > 1000000)
        throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall);
    const int64_t monthIndex = int64_t(year) * 12 + (int64_t(month) - 1);
    const int64_t normalYear = monthIndex >= 0 ? monthIndex / 12 : (monthIndex - 11) / 12;
    const int64_t normalMonth = monthIndex - normalYear * 12 + 1;
    const int64_t serial = DaysFromCivil(normalYear, normalMonth, 1) - SerialEpoch + (int64_t(day) - 1);
    if (serial < FirstDay || serial >= EndDay)
        throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall);
    return OleDate(double(serial));
}

OleDate::Parts OleDate::Split() const
{
    if (!(m_serial > double(FirstDay - 1) && m_serial < double(EndDay)))
        throw AutomationError::RunTime(RunTimeError::Overflow);
    const double whole = std::trunc(m_serial);
    int64_t dayIndex = int64_t(whole);
    int secondOfDay = int(std::lround(std::fabs(m_serial - whole) * SecondsPerDay));
    if (secondOfDay >= SecondsPerDay) {
        secondOfDay -= SecondsPerDay;
        ++dayIndex;
    }
    Parts parts {};
    CivilFromDays(dayIndex + SerialEpoch, parts.year, parts.month, parts.day);
    // Serial 0 was a Saturday.
    parts.weekday = int(((dayIndex % 7) + 13) % 7) + 1;
    parts.secondOfDay = secondOfDay;
    return parts;
}

int OleDate::Year() const
{
    return Split().year;
}
int OleDate::Month() const
{
    return Split().month;
}
int OleDate::Day() const
{
    return Split().day;
}
int OleDate::Weekday() const
{
    return Split().weekday;
}
int OleDate::Hour() const
{
    return Split().secondOfDay / 3600;
}
int OleDate::Minute() const
{
    return Split().secondOfDay / 60 % 60;
}
int OleDate::Second() const
{
    return Split().secondOfDay % 60;
}

} // namespace tolva
