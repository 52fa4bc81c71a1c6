#include "host/form/form_literal.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace tolva {

namespace {

std::string_view Trim(std::string_view s)
{
    const auto isSpace = [](char c) { return c == ' ' || c == '\t'; };
    while (!s.empty() && isSpace(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && isSpace(s.back()))
        s.remove_suffix(1);
    return s;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c; };
    return a.size() == b.size()
        && std::equal(a.begin(), a.end(), b.begin(), [&](char x, char y) { return lower(x) == lower(y); });
}

// A quoted string: returns the text and leaves rest at whatever follows the closing quote.
String ParseQuoted(std::string_view text, std::string_view& rest)
{
    std::string value;
    size_t i = 1;
    for (;;) {
        if (i >= text.size())
            throw FormLiteralError("the string has no closing quote");
        if (text[i] == '"') {
            if (i + 1 < text.size() && text[i + 1] == '"') {
                value += '"';
                i += 2;
                continue;
            }
            break;
        }
        value += text[i++];
    }
    rest = text.substr(i + 1);
    return FromUtf8(value);
}

Variant ParseHex(std::string_view text)
{
    std::string_view digits = text.substr(2);
    if (!digits.empty() && digits.back() == '&')
        digits.remove_suffix(1);
    if (digits.empty() || digits.size() > 8)
        throw FormLiteralError("a hexadecimal value needs 1 to 8 digits");
    uint32_t value = 0;
    auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (ec != std::errc() || end != digits.data() + digits.size())
        throw FormLiteralError("\"" + std::string(text) + "\" is not a hexadecimal value");
    return Variant(value);
}

Variant ParseNumber(std::string_view text, std::string_view comment)
{
    const char* first = text.data();
    const char* last = text.data() + text.size();
    if (text.find_first_of(".eE") == std::string_view::npos) {
        int64_t value = 0;
        auto [end, ec] = std::from_chars(first, last, value);
        if (ec == std::errc::result_out_of_range
            || (ec == std::errc() && end == last
                && (value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max())))
            throw FormLiteralError("\"" + std::string(text) + "\" is out of the 32-bit range");
        if (ec != std::errc() || end != last)
            throw FormLiteralError("\"" + std::string(text) + "\" is not a value");
        if (EqualsIgnoringCase(comment, "True") || EqualsIgnoringCase(comment, "False")) {
            if (value != 0 && value != -1)
                throw FormLiteralError("a boolean is -1 'True or 0 'False");
            return Variant(value != 0);
        }
        return Variant(int32_t(value));
    }
    double value = 0;
    auto [end, ec] = std::from_chars(first, last, value);
    if (ec != std::errc() || end != last || !std::isfinite(value))
        throw FormLiteralError("\"" + std::string(text) + "\" is not a value");
    return Variant(value);
}

std::string FormatDouble(double value)
{
    if (!std::isfinite(value))
        throw FormLiteralError("a number that is not finite cannot be saved");
    char buffer[32];
    auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, end);
}

std::string FormatFloat(float value)
{
    if (!std::isfinite(value))
        throw FormLiteralError("a number that is not finite cannot be saved");
    char buffer[32];
    auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, end);
}

std::string FormatCurrency(Currency value)
{
    const int64_t raw = value.Raw();
    const uint64_t magnitude = raw < 0 ? uint64_t(0) - uint64_t(raw) : uint64_t(raw);
    std::string text = raw < 0 ? "-" : "";
    text += std::to_string(magnitude / Currency::Scale);
    char fraction[8];
    std::snprintf(fraction, sizeof fraction, ".%04u", unsigned(magnitude % Currency::Scale));
    std::string_view decimals = fraction;
    while (decimals.back() == '0')
        decimals.remove_suffix(1);
    if (decimals.size() > 1)
        text += decimals;
    return text;
}

std::string FormatString(const String& value)
{
    std::string text = "\"";
    for (char c : ToUtf8(value)) {
        if (c == '\r' || c == '\n')
            throw FormLiteralError("a text with a line break cannot be saved in a form file");
        text += c;
        if (c == '"')
            text += '"';
    }
    return text + "\"";
}

bool NamesColor(StringView key)
{
    String lower(key);
    for (char16_t& c : lower)
        c = (c >= u'A' && c <= u'Z') ? char16_t(c - u'A' + u'a') : c;
    return lower.find(u"color") != String::npos;
}

std::string FormatHex(uint32_t value)
{
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "&H%08X&", value);
    return buffer;
}

} // namespace

Variant ParseFormLiteral(std::string_view text)
{
    text = Trim(text);
    if (text.empty())
        throw FormLiteralError("the value is missing");
    if (text.front() == '"') {
        std::string_view rest;
        String value = ParseQuoted(text, rest);
        rest = Trim(rest);
        if (!rest.empty() && rest.front() != '\'')
            throw FormLiteralError("unexpected text after the closing quote");
        return Variant(std::move(value));
    }
    if (text.front() == '$')
        throw FormLiteralError("values kept in a binary resource file are not supported");

    std::string_view comment;
    if (size_t apostrophe = text.find('\''); apostrophe != std::string_view::npos) {
        comment = Trim(text.substr(apostrophe + 1));
        text = Trim(text.substr(0, apostrophe));
    }
    if (text.empty())
        throw FormLiteralError("the value is missing");
    if (EqualsIgnoringCase(text, "True"))
        return Variant(true);
    if (EqualsIgnoringCase(text, "False"))
        return Variant(false);
    if (text.size() > 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h'))
        return ParseHex(text);
    return ParseNumber(text, comment);
}

std::string FormatFormLiteral(StringView key, const Variant& value)
{
    const Variant::Storage& v = value.Value();
    if (const bool* b = std::get_if<bool>(&v))
        return *b ? "-1  'True" : "0   'False";
    if (const int16_t* i = std::get_if<int16_t>(&v))
        return std::to_string(*i);
    if (const int32_t* i = std::get_if<int32_t>(&v))
        return NamesColor(key) ? FormatHex(uint32_t(*i)) : std::to_string(*i);
    if (const float* f = std::get_if<float>(&v))
        return FormatFloat(*f);
    if (const double* d = std::get_if<double>(&v))
        return FormatDouble(*d);
    if (const Currency* c = std::get_if<Currency>(&v))
        return FormatCurrency(*c);
    if (const OleDate* d = std::get_if<OleDate>(&v))
        return FormatDouble(d->Serial());
    if (const String* s = std::get_if<String>(&v))
        return FormatString(*s);
    if (std::holds_alternative<Font>(v))
        throw FormLiteralError("a font is saved as a property group, not as a value");
    throw FormLiteralError("an empty value cannot be saved");
}

} // namespace tolva
