#include "host/form/form_reader.h"
#include "host/form/form_literal.h"
#include "host/form/form_syntax_error.h"
#include <map>
#include <optional>
#include <vector>

namespace tolva {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool IsSpace(char c)
{
    return c == ' ' || c == '\t';
}
bool IsIdentifierStart(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}
bool IsIdentifierChar(char c)
{
    return IsIdentifierStart(c) || (c >= '0' && c <= '9');
}

std::string_view Trim(std::string_view s)
{
    while (!s.empty() && IsSpace(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && (IsSpace(s.back()) || s.back() == '\r'))
        s.remove_suffix(1);
    return s;
}

bool IsIdentifier(std::string_view s)
{
    if (s.empty() || !IsIdentifierStart(s.front()))
        return false;
    for (char c : s)
        if (!IsIdentifierChar(c))
            return false;
    return true;
}

// "Library.Class" as in VB.Form or TolvaKit.TolvaCommand.
bool IsTypeName(std::string_view s)
{
    size_t dot = s.find('.');
    return dot != std::string_view::npos && IsIdentifier(s.substr(0, dot)) && IsIdentifier(s.substr(dot + 1));
}

std::string_view FirstWord(std::string_view line)
{
    size_t end = 0;
    while (end < line.size() && !IsSpace(line[end]))
        ++end;
    return line.substr(0, end);
}

std::string_view AfterFirstWord(std::string_view line)
{
    return Trim(line.substr(FirstWord(line).size()));
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i) {
        const auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c; };
        if (lower(a[i]) != lower(b[i]))
            return false;
    }
    return true;
}

struct Line {
    int number;
    std::string_view text; // trimmed
};

class Parser {
public:
    explicit Parser(std::string_view text);
    FormObject ParseFile();

private:
    FormObject ParseBlock(const Line& begin, int depth);
    void ParseProperty(FormObject& object, const Line& line);
    Font ParseFontGroup(const Line& begin);
    static void ApplyFontAttribute(Font& font, std::string_view key, const Variant& value, int line);
    void Claim(const FormObject& object);

    std::vector<Line> m_lines;
    size_t m_next = 0;
    size_t m_objects = 0;
    std::map<String, int> m_names; // lower-cased name -> line of its Begin
};

Parser::Parser(std::string_view text)
{
    if (text.size() > FormReader::MaxTextSize)
        throw FormSyntaxError(1, "the form file is larger than 1 MiB");
    if (text.substr(0, ByteOrderMark.size()) == ByteOrderMark)
        text.remove_prefix(ByteOrderMark.size());
    int number = 0;
    while (!text.empty()) {
        ++number;
        size_t end = text.find('\n');
        std::string_view raw = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (raw.size() > FormReader::MaxLineLength)
            throw FormSyntaxError(number, "the line is longer than 4096 characters");
        if (raw.find('\0') != std::string_view::npos)
            throw FormSyntaxError(number, "the line contains a NUL character");
        std::string_view trimmed = Trim(raw);
        if (!trimmed.empty())
            m_lines.push_back(Line { number, trimmed });
    }
}

FormObject Parser::ParseFile()
{
    std::optional<FormObject> form;
    bool versionAllowed = true;
    while (m_next < m_lines.size()) {
        const Line& line = m_lines[m_next++];
        std::string_view word = FirstWord(line.text);
        if (form) {
            if (word != "Attribute")
                throw FormSyntaxError(line.number, "only Attribute lines may follow the form's End");
            continue;
        }
        if (word == "VERSION" && versionAllowed) {
            versionAllowed = false;
            continue;
        }
        versionAllowed = false;
        if (word == "Object")
            continue; // the libraries the form uses; the host finds controls by their ProgID
        if (word != "Begin")
            throw FormSyntaxError(line.number, "expected \"Begin VB.Form <name>\"");
        if (FirstWord(AfterFirstWord(line.text)) != "VB.Form")
            throw FormSyntaxError(line.number, "the outermost block must be a VB.Form");
        form = ParseBlock(line, 1);
    }
    if (!form)
        throw FormSyntaxError(m_lines.empty() ? 1 : m_lines.back().number, "the file holds no form");
    return std::move(*form);
}

FormObject Parser::ParseBlock(const Line& begin, int depth)
{
    if (depth > FormReader::MaxDepth)
        throw FormSyntaxError(begin.number, "blocks are nested more than 32 deep");
    if (++m_objects > FormReader::MaxObjects)
        throw FormSyntaxError(begin.number, "the form holds more than 4096 objects");

    std::string_view rest = AfterFirstWord(begin.text);
    std::string_view type = FirstWord(rest);
    std::string_view name = AfterFirstWord(rest);
    if (!IsTypeName(type))
        throw FormSyntaxError(
            begin.number, "\"" + std::string(type) + "\" is not a type name like TolvaKit.TolvaCommand");
    if (!IsIdentifier(name))
        throw FormSyntaxError(begin.number, "\"" + std::string(name) + "\" is not a valid name");

    FormObject object(FromUtf8(type), FromUtf8(name), begin.number);
    Claim(object);

    while (m_next < m_lines.size()) {
        const Line& line = m_lines[m_next++];
        std::string_view word = FirstWord(line.text);
        if (word == "End") {
            if (!AfterFirstWord(line.text).empty() && AfterFirstWord(line.text).front() != '\'')
                throw FormSyntaxError(line.number, "unexpected text after End");
            return object;
        }
        if (word == "Begin") {
            object.children.push_back(ParseBlock(line, depth + 1));
        } else if (word == "BeginProperty") {
            std::string_view key = FirstWord(AfterFirstWord(line.text));
            if (!IsIdentifier(key))
                throw FormSyntaxError(line.number, "BeginProperty needs a property name");
            if (object.Find(FromUtf8(key)))
                throw FormSyntaxError(line.number, "the property " + std::string(key) + " is set twice");
            Font font = ParseFontGroup(line);
            object.properties.push_back(FormProperty { FromUtf8(key), Variant(std::move(font)), line.number });
        } else if (word == "EndProperty") {
            throw FormSyntaxError(line.number, "EndProperty without BeginProperty");
        } else {
            ParseProperty(object, line);
        }
    }
    throw FormSyntaxError(begin.number, "the block " + std::string(name) + " has no End");
}

void Parser::ParseProperty(FormObject& object, const Line& line)
{
    size_t equals = line.text.find('=');
    if (equals == std::string_view::npos)
        throw FormSyntaxError(line.number, "expected \"Key = value\", Begin or End");
    std::string_view key = Trim(line.text.substr(0, equals));
    if (!IsIdentifier(key))
        throw FormSyntaxError(line.number, "\"" + std::string(key) + "\" is not a valid property name");
    if (object.Find(FromUtf8(key)))
        throw FormSyntaxError(line.number, "the property " + std::string(key) + " is set twice");
    try {
        object.properties.push_back(
            FormProperty { FromUtf8(key), ParseFormLiteral(line.text.substr(equals + 1)), line.number });
    } catch (const FormLiteralError& e) {
        throw FormSyntaxError(line.number, std::string(key) + ": " + e.what());
    }
}

Font Parser::ParseFontGroup(const Line& begin)
{
    Font font;
    std::vector<std::string_view> seen;
    while (m_next < m_lines.size()) {
        const Line& line = m_lines[m_next++];
        if (FirstWord(line.text) == "EndProperty")
            return font;
        size_t equals = line.text.find('=');
        if (equals == std::string_view::npos)
            throw FormSyntaxError(line.number, "expected \"Key = value\" or EndProperty");
        std::string_view key = Trim(line.text.substr(0, equals));
        for (std::string_view earlier : seen)
            if (EqualsIgnoringCase(earlier, key))
                throw FormSyntaxError(line.number, "the font attribute " + std::string(key) + " is set twice");
        seen.push_back(key);
        Variant value;
        try {
            value = ParseFormLiteral(line.text.substr(equals + 1));
        } catch (const FormLiteralError& e) {
            throw FormSyntaxError(line.number, std::string(key) + ": " + e.what());
        }
        ApplyFontAttribute(font, key, value, line.number);
    }
    throw FormSyntaxError(begin.number, "BeginProperty without EndProperty");
}

void Parser::ApplyFontAttribute(Font& font, std::string_view key, const Variant& value, int line)
{
    const auto number = [&](double low, double high) {
        double n = 0;
        if (const int32_t* i = std::get_if<int32_t>(&value.Value()))
            n = *i;
        else if (const double* d = std::get_if<double>(&value.Value()))
            n = *d;
        else
            throw FormSyntaxError(line, "the font attribute " + std::string(key) + " must be a number");
        if (n < low || n > high)
            throw FormSyntaxError(line, "the font attribute " + std::string(key) + " is out of range");
        return n;
    };
    const auto flag = [&] {
        if (const bool* b = std::get_if<bool>(&value.Value()))
            return *b;
        return number(-1, 1) != 0;
    };
    if (EqualsIgnoringCase(key, "Name")) {
        const String* name = std::get_if<String>(&value.Value());
        if (!name || name->empty() || name->size() > 31)
            throw FormSyntaxError(line, "the font name must be a text of 1 to 31 characters");
        font.name = *name;
    } else if (EqualsIgnoringCase(key, "Size")) {
        font.size = number(1, 2048);
    } else if (EqualsIgnoringCase(key, "Weight")) {
        font.weight = int16_t(number(0, 1000));
    } else if (EqualsIgnoringCase(key, "Charset")) {
        font.charset = int16_t(number(0, 255));
    } else if (EqualsIgnoringCase(key, "Italic")) {
        font.italic = flag();
    } else if (EqualsIgnoringCase(key, "Underline")) {
        font.underline = flag();
    } else if (EqualsIgnoringCase(key, "Strikethrough")) {
        font.strikethrough = flag();
    } else {
        throw FormSyntaxError(line, "\"" + std::string(key) + "\" is not a font attribute");
    }
}

void Parser::Claim(const FormObject& object)
{
    String lower = object.name;
    for (char16_t& c : lower)
        c = (c >= u'A' && c <= u'Z') ? char16_t(c - u'A' + u'a') : c;
    auto [it, added] = m_names.emplace(lower, object.line);
    if (!added)
        throw FormSyntaxError(
            object.line, "the name " + ToUtf8(object.name) + " is already used at line " + std::to_string(it->second));
}

} // namespace

FormObject FormReader::Read(std::string_view text)
{
    return Parser(text).ParseFile();
}

} // namespace tolva
