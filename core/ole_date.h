#pragma once
#include <compare>

namespace tolva {

// An automation date: days since 30 December 1899, the fraction being the time of day.
class OleDate {
public:
    constexpr OleDate() = default;
    constexpr explicit OleDate(double serial) : m_serial(serial) {}

    // Throws the InvalidProcedureCall run-time error for a day outside years 100 to 9999.
    static OleDate FromYmd(int year, int month, int day);

    constexpr double Serial() const { return m_serial; }
    int Year() const;
    int Month() const; // 1 to 12
    int Day() const;   // 1 to 31
    int Weekday() const; // 1 = Sunday ... 7 = Saturday

    constexpr auto operator<=>(const OleDate&) const = default;

private:
    double m_serial = 0;
};

} // namespace tolva
