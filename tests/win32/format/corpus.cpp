#include "tests/win32/format/corpus.h"
#include "core/automation_error.h"
#include "core/decimal_text.h"
#include <cstdio>
#include <fstream>
#include <sstream>

namespace tolva::test {

namespace {

std::vector<std::string> Fields(const std::string& line)
{
    std::vector<std::string> fields;
    std::string field;
    std::istringstream in(line);
    while (std::getline(in, field, '\t'))
        fields.push_back(field);
    if (!line.empty() && line.back() == '\t')
        fields.emplace_back();
    return fields;
}

Variant ValueOf(const std::string& type, const std::string& text)
{
    if (type == "d")
        return std::stod(text);
    if (type == "f")
        return std::stof(text);
    if (type == "c")
        return DecimalText::Parse(FromUtf8(text))->ToCurrency();
    if (type == "t")
        return OleDate(std::stod(text));
    if (type == "s")
        return FromUtf8(text);
    if (type == "b")
        return text == "True";
    if (type == "i")
        return int32_t(std::stol(text));
    if (type == "h")
        return int16_t(std::stoi(text));
    throw std::runtime_error("unknown value type " + type);
}

// The lines of a corpus with their numbers, without comments and blank lines.
template <typename F> std::vector<CorpusCase> ReadLines(const char* path, size_t questionFields, F read)
{
    std::ifstream in(path);
    if (!in)
        throw std::runtime_error("cannot read the corpus");
    std::vector<CorpusCase> cases;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line[0] == '#')
            continue;
        const std::vector<std::string> fields = Fields(line);
        if (fields.size() != questionFields && fields.size() != questionFields + 3)
            throw std::runtime_error("corpus line " + std::to_string(number) + " has a wrong number of fields");
        CorpusCase c;
        c.line = number;
        read(fields, c);
        if (fields.size() > questionFields)
            c.wineDifference = CorpusCase::WineDifference { fields[questionFields], fields[questionFields + 1],
                fields[questionFields + 2] };
        cases.push_back(std::move(c));
    }
    return cases;
}

} // namespace

std::vector<CorpusCase> ReadFormatCorpus(const char* path)
{
    return ReadLines(path, 3, [](const std::vector<std::string>& fields, CorpusCase& c) {
        c.value = ValueOf(fields[0], fields[1]);
        c.text = FromUtf8(fields[2]);
    });
}

std::vector<CorpusCase> ReadParseCorpus(const char* path)
{
    return ReadLines(path, 1, [](const std::vector<std::string>& fields, CorpusCase& c) { c.text = FromUtf8(fields[0]); });
}

std::string Outcome(const std::function<String()>& call)
{
    try {
        return ToUtf8(call());
    } catch (const AutomationError& e) {
        return "<error " + std::to_string(uint32_t(e.HResult()) - 0x800A0000u) + ">";
    }
}

std::string ParseOutcome(Formatter& formatter, StringView text)
{
    const std::string amount = Outcome([&] { return FromUtf8(std::to_string(formatter.TextToCurrency(text).Raw())); });
    const std::string date = Outcome([&] {
        char serial[32];
        std::snprintf(serial, sizeof serial, "%.10g", formatter.TextToDate(text).Serial());
        return FromUtf8(serial);
    });
    return "currency " + amount + ", date " + date + ", is-date " + (formatter.IsDate(text) ? "yes" : "no")
        + ", is-numeric " + (formatter.IsNumeric(text) ? "yes" : "no");
}

} // namespace tolva::test
