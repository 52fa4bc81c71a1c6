#pragma once
#include <compare>

namespace tolva {

// An automation date: days since 30 December 1899, the fraction being the time of day. A
// negative serial counts whole days back from that date, its fraction still being the time
// of day (-1.25 is 29 December 1899, 6:00).
class OleDate {
public:
    constexpr OleDate() = default;
    constexpr explicit OleDate(double serial)
        : m_serial(serial)
    { }

    // Months and days outside their ranges carry into the neighbouring months and years, as
    // DateSerial does (month 13 is January of the next year, day 0 the last day of the
    // previous month). Throws the InvalidProcedureCall run-time error for a day outside
    // years 100 to 9999.
    static OleDate FromYmd(int year, int month, int day);

    // The parts below round the time to the nearest second first (23:59:59.6 belongs to the
    // next day). They throw the Overflow run-time error for a serial outside years 100 to 9999.
    constexpr double Serial() const { return m_serial; }
    int Year() const;
    int Month() const; // 1 to 12
    int Day() const; // 1 to 31
    int Weekday() const; // 1 = Sunday ... 7 = Saturday
    int Hour() const; // 0 to 23
    int Minute() const; // 0 to 59
    int Second() const; // 0 to 59

    constexpr auto operator<=>(const OleDate&) const = default;

private:
    struct Parts {
        int year, month, day, weekday, secondOfDay;
    };
    Parts Split() const;

    double m_serial = 0;
};

} // namespace tolva
