#include "host/form/form_writer.h"
#include "host/form/form_literal.h"
#include "host/form/form_reader.h"

namespace tolva {

namespace {

void WriteKey(std::string& out, int depth, StringView key)
{
    constexpr size_t KeyColumns = 16;
    std::string name = ToUtf8(key);
    out.append(size_t(depth) * 3, ' ');
    out += name;
    out.append(name.size() < KeyColumns ? KeyColumns - name.size() : 1, ' ');
    out += "=   ";
}

void WriteFont(std::string& out, int depth, StringView key, const Font& font)
{
    const auto line = [&](StringView name, const Variant& value) {
        WriteKey(out, depth + 1, name);
        out += FormatFormLiteral(name, value) + "\n";
    };
    out.append(size_t(depth) * 3, ' ');
    out += "BeginProperty " + ToUtf8(key) + "\n";
    line(u"Name", font.name);
    line(u"Size", font.size);
    line(u"Charset", int32_t(font.charset));
    line(u"Weight", int32_t(font.weight));
    line(u"Underline", font.underline);
    line(u"Italic", font.italic);
    line(u"Strikethrough", font.strikethrough);
    out.append(size_t(depth) * 3, ' ');
    out += "EndProperty\n";
}

void WriteObject(std::string& out, int depth, const FormObject& object)
{
    out.append(size_t(depth) * 3, ' ');
    out += "Begin " + ToUtf8(object.type) + " " + ToUtf8(object.name) + "\n";
    for (const FormProperty& property : object.properties) {
        if (const Font* font = std::get_if<Font>(&property.value.Value())) {
            WriteFont(out, depth + 1, property.key, *font);
            continue;
        }
        WriteKey(out, depth + 1, property.key);
        out += FormatFormLiteral(property.key, property.value) + "\n";
    }
    for (const FormObject& child : object.children)
        WriteObject(out, depth + 1, child);
    out.append(size_t(depth) * 3, ' ');
    out += "End\n";
}

} // namespace

std::string FormWriter::Write(const FormObject& form)
{
    std::string out = "VERSION 5.00\n";
    WriteObject(out, 0, form);
    // The reader's bound on a line, kept here so that what is written reads back: a text's
    // characters may take up to three bytes each, and each level of nesting three columns.
    for (size_t start = 0, end; start < out.size(); start = end + 1) {
        end = out.find('\n', start);
        if (end - start > FormReader::MaxLineLength)
            throw FormLiteralError("a line would be longer than the 4096 characters a form file holds");
    }
    return out;
}

} // namespace tolva
