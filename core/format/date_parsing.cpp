#include "core/format/date_parsing.h"
#include "core/automation_error.h"
#include "core/format/en_us_locale.h"
#include <vector>

namespace tolva {

namespace {

struct Token {
    enum class Kind { Number, Month, DayName, Am, Pm, DateSeparator, TimeSeparator } kind;
    int value = 0; // the number, or the month 1 to 12
    int digits = 0; // of a number
};

bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

bool IsLetter(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

std::optional<Token> WordToken(StringView word)
{
    if (EqualsIgnoringCase(word, en_us::Am))
        return Token { Token::Kind::Am };
    if (EqualsIgnoringCase(word, en_us::Pm))
        return Token { Token::Kind::Pm };
    for (int month = 1; month <= 12; ++month)
        if (EqualsIgnoringCase(word, en_us::MonthName(month)) || EqualsIgnoringCase(word, en_us::MonthAbbreviation(month)))
            return Token { Token::Kind::Month, month };
    for (int day = 1; day <= 7; ++day)
        if (EqualsIgnoringCase(word, en_us::DayName(day)) || EqualsIgnoringCase(word, en_us::DayAbbreviation(day)))
            return Token { Token::Kind::DayName };
    return std::nullopt;
}

// Numbers, words and separators; blanks and commas only part them.
std::optional<std::vector<Token>> Tokens(StringView text)
{
    std::vector<Token> tokens;
    for (size_t i = 0; i < text.size();) {
        const char16_t c = text[i];
        if (c == u' ' || c == u'\t' || c == u',') {
            ++i;
        } else if (IsDigit(c)) {
            Token number { Token::Kind::Number };
            for (; i < text.size() && IsDigit(text[i]); ++i) {
                if (number.value > 99999)
                    return std::nullopt;
                number.value = number.value * 10 + (text[i] - u'0');
                ++number.digits;
            }
            tokens.push_back(number);
        } else if (IsLetter(c)) {
            const size_t start = i;
            while (i < text.size() && IsLetter(text[i]))
                ++i;
            const auto word = WordToken(text.substr(start, i - start));
            if (!word)
                return std::nullopt;
            tokens.push_back(*word);
        } else if (c == u'/' || c == u'-') {
            tokens.push_back({ Token::Kind::DateSeparator });
            ++i;
        } else if (c == u':' || c == u'.') {
            tokens.push_back({ Token::Kind::TimeSeparator });
            ++i;
        } else {
            return std::nullopt;
        }
    }
    // A date separator stands between two parts.
    for (size_t k = 0; k < tokens.size(); ++k) {
        const auto separator = [&](size_t j) { return tokens[j].kind == Token::Kind::DateSeparator; };
        if (separator(k) && (k == 0 || k + 1 == tokens.size() || separator(k - 1) || separator(k + 1)))
            return std::nullopt;
    }
    return tokens;
}

bool IsLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysInMonth(int year, int month)
{
    constexpr int days[] = { 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
    return month == 2 && IsLeapYear(year) ? 29 : days[month - 1];
}

// Two-digit years 30 to 99 are 1930 to 1999, 00 to 29 are 2000 to 2029.
int FullYear(const Token& year)
{
    if (year.digits > 2)
        return year.value;
    return year.value < 30 ? 2000 + year.value : 1900 + year.value;
}

struct Ymd {
    int year, month, day;
};

std::optional<Ymd> Valid(int year, int month, int day)
{
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > DaysInMonth(year, month))
        return std::nullopt;
    return Ymd { year, month, day };
}

// The day from the numbers and the month name, if any: month first, the year last, the year
// first when it cannot be a day.
std::optional<Ymd> DayOf(const std::vector<Token>& numbers, int namedMonth, int thisYear)
{
    const auto n = [&](size_t k) { return numbers[k].value; };
    const auto yearFirst = [&] { return numbers[0].digits > 2 || n(0) > 31; };
    if (namedMonth != 0) {
        if (numbers.size() == 1)
            return n(0) <= 31 ? Valid(thisYear, namedMonth, n(0)) : Valid(FullYear(numbers[0]), namedMonth, 1);
        if (numbers.size() == 2)
            return yearFirst() ? Valid(FullYear(numbers[0]), namedMonth, n(1))
                               : Valid(FullYear(numbers[1]), namedMonth, n(0));
        return std::nullopt;
    }
    if (numbers.size() == 2) {
        if (auto day = Valid(thisYear, n(0), n(1)))
            return day;
        if (n(0) <= 12)
            return Valid(FullYear(numbers[1]), n(0), 1);
        return Valid(thisYear, n(1), n(0));
    }
    if (numbers.size() == 3) {
        if (yearFirst())
            return Valid(FullYear(numbers[0]), n(1), n(2));
        if (auto day = Valid(FullYear(numbers[2]), n(0), n(1)))
            return day;
        return Valid(FullYear(numbers[2]), n(1), n(0));
    }
    return std::nullopt;
}

struct Time {
    int hour = 0, minute = 0, second = 0;
};

} // namespace

std::optional<OleDate> ParseLocaleDate(StringView text, OleDate today)
{
    const auto tokens = Tokens(text);
    if (!tokens || tokens->empty())
        return std::nullopt;

    std::vector<Token> numbers;
    int namedMonth = 0;
    std::optional<Time> time;
    using Kind = Token::Kind;
    const auto kindAt = [&](size_t k) { return k < tokens->size() ? (*tokens)[k].kind : Kind::DateSeparator; };
    for (size_t i = 0; i < tokens->size(); ++i) {
        const Token& token = (*tokens)[i];
        switch (token.kind) {
        case Kind::Number: {
            if (kindAt(i + 1) != Kind::TimeSeparator && kindAt(i + 1) != Kind::Am && kindAt(i + 1) != Kind::Pm) {
                numbers.push_back(token);
                break;
            }
            if (time)
                return std::nullopt;
            // hours[:minutes[:seconds]] [AM|PM]
            int parts[3] = { token.value, 0, 0 };
            size_t count = 1;
            while (count < 3 && kindAt(i + 1) == Kind::TimeSeparator && kindAt(i + 2) == Kind::Number) {
                parts[count++] = (*tokens)[i + 2].value;
                i += 2;
            }
            if (kindAt(i + 1) == Kind::TimeSeparator)
                return std::nullopt;
            Time t { parts[0], parts[1], parts[2] };
            if (kindAt(i + 1) == Kind::Am || kindAt(i + 1) == Kind::Pm) {
                const bool pm = kindAt(++i) == Kind::Pm;
                if (t.hour == 12)
                    t.hour = pm ? 12 : 0;
                else if (pm && t.hour < 12)
                    t.hour += 12;
            }
            if (t.hour > 23 || t.minute > 59 || t.second > 59)
                return std::nullopt;
            time = t;
            break;
        }
        case Kind::Month:
            if (namedMonth != 0)
                return std::nullopt;
            namedMonth = token.value;
            break;
        case Kind::DayName:
        case Kind::DateSeparator:
            break;
        case Kind::Am:
        case Kind::Pm:
        case Kind::TimeSeparator:
            return std::nullopt;
        }
    }

    double days = 0;
    if (!numbers.empty() || namedMonth != 0) {
        const auto day = DayOf(numbers, namedMonth, today.Year());
        if (!day)
            return std::nullopt;
        days = OleDate::FromYmd(day->year, day->month, day->day).Serial();
    } else if (!time) {
        return std::nullopt;
    }
    const double fraction = time ? (time->hour * 3600 + time->minute * 60 + time->second) / 86400.0 : 0.0;
    return OleDate(days < 0 ? days - fraction : days + fraction);
}

} // namespace tolva
