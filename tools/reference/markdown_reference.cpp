#include "tools/reference/markdown_reference.h"
#include <cwctype>
#include <sstream>

namespace tolva::reference {

namespace {

std::string Utf8(const std::wstring& text)
{
    if (text.empty())
        return {};
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), nullptr, 0, nullptr, nullptr);
    std::string result(size_t(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), int(text.size()), result.data(), size, nullptr, nullptr);
    return result;
}

std::string GuidText(const GUID& guid)
{
    wchar_t text[40] = {};
    StringFromGUID2(guid, text, 40);
    return Utf8(text);
}

// Ids as Visual Basic numbers them in hexadecimal, the small and standard ones in decimal.
std::string IdText(MEMBERID id)
{
    if (id < 0 || id < 0x10000)
        return std::to_string(id);
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(id));
    return text;
}

// A table cell: the pipe would end it.
std::string Cell(const std::wstring& text)
{
    std::string cell;
    for (char c : Utf8(text)) {
        if (c == '|')
            cell += '\\';
        cell += c;
    }
    return cell;
}

std::string Code(const std::wstring& text)
{
    return text.empty() ? std::string() : "`" + Cell(text) + "`";
}

std::wstring ParameterText(const Parameter& parameter)
{
    std::wstring text;
    if (parameter.optional)
        text += L"Optional ";
    if (parameter.byReference)
        text += L"ByRef ";
    text += parameter.name + L" As " + parameter.type;
    if (!parameter.defaultValue.empty())
        text += L" = " + parameter.defaultValue;
    return text;
}

std::wstring ParameterList(const std::vector<Parameter>& parameters)
{
    std::wstring list;
    for (const Parameter& parameter : parameters)
        list += (list.empty() ? L"" : L", ") + ParameterText(parameter);
    return list;
}

std::wstring Anchor(const std::wstring& name)
{
    std::wstring anchor;
    for (wchar_t c : name)
        anchor += wchar_t(std::towlower(c));
    return anchor;
}

std::string AccessText(const Member& member)
{
    std::string access;
    for (auto [present, word] : { std::pair { member.get, "get" }, { member.let, "let" }, { member.set, "set" } })
        if (present)
            access += (access.empty() ? "" : ", ") + std::string(word);
    return access;
}

void WriteProperties(std::ostream& out, const Interface& dispatch)
{
    out << "### Properties\n\n| Property | Id | Type | Access | Description |\n|---|---|---|---|---|\n";
    for (const Member& member : dispatch.members) {
        if (!member.property)
            continue;
        const std::wstring name
            = member.parameters.empty() ? member.name : member.name + L"(" + ParameterList(member.parameters) + L")";
        out << "| " << Code(name) << " | `" << IdText(member.id) << "` | " << Code(member.type) << " | "
            << AccessText(member) << " | " << Cell(member.help) << " |\n";
    }
    out << "\n";
}

void WriteMethods(std::ostream& out, const Interface& dispatch)
{
    out << "### Methods\n\n| Method | Id | Parameters | Returns | Description |\n|---|---|---|---|---|\n";
    for (const Member& member : dispatch.members)
        if (!member.property)
            out << "| " << Code(member.name) << " | `" << IdText(member.id) << "` | "
                << Code(ParameterList(member.parameters)) << " | " << Code(member.type) << " | " << Cell(member.help)
                << " |\n";
    out << "\n";
}

void WriteEvents(std::ostream& out, const Interface& events)
{
    out << "### Events (`" << Cell(events.name) << "`)\n\n";
    if (events.members.empty()) {
        out << "None.\n\n";
        return;
    }
    out << "| Event | Id | Parameters | Description |\n|---|---|---|---|\n";
    for (const Member& member : events.members)
        out << "| " << Code(member.name) << " | `" << IdText(member.id) << "` | "
            << Code(ParameterList(member.parameters)) << " | " << Cell(member.help) << " |\n";
    out << "\n";
}

void WritePersisted(std::ostream& out, const std::vector<PersistedProperty>& persisted)
{
    out << "### Persisted properties\n\n";
    if (persisted.empty()) {
        out << "None.\n\n";
        return;
    }
    out << "The keys of the property bag in the order the control writes them; a value equal to its default is "
           "left out.\n\n| Key | Type | Default |\n|---|---|---|\n";
    for (const PersistedProperty& property : persisted)
        out << "| " << Code(property.key) << " | " << Code(property.type) << " | " << Code(property.defaultValue)
            << " |\n";
    out << "\n";
}

void WriteClass(std::ostream& out, const ControlClassDescription& c)
{
    out << "## " << Cell(c.name) << "\n\n" << Cell(c.help) << "\n\n";
    out << "- ProgID `TolvaKit." << Cell(c.name) << "` (versioned `TolvaKit." << Cell(c.name) << ".1`), class id `"
        << GuidText(c.clsid) << "`\n";
    out << "- Default interface `" << Cell(c.dispatch.name) << "` `" << GuidText(c.dispatch.iid)
        << "`, events `" << Cell(c.events.name) << "` `" << GuidText(c.events.iid) << "`\n\n";
    WriteProperties(out, c.dispatch);
    WriteMethods(out, c.dispatch);
    WriteEvents(out, c.events);
    WritePersisted(out, c.persisted);
}

void WriteEnumerations(std::ostream& out, const std::vector<Enumeration>& enumerations)
{
    out << "## Enumerations\n\n";
    for (const Enumeration& enumeration : enumerations) {
        out << "### " << Cell(enumeration.name) << "\n\n" << Cell(enumeration.help) << "\n\n";
        out << "| Member | Value |\n|---|---|\n";
        for (const auto& [name, value] : enumeration.members)
            out << "| `" << Cell(name) << "` | " << value << " |\n";
        out << "\n";
    }
}

void WriteAliases(std::ostream& out, const std::vector<Alias>& aliases)
{
    out << "## Aliases\n\n| Alias | Type | GUID |\n|---|---|---|\n";
    for (const Alias& alias : aliases)
        out << "| `" << Cell(alias.name) << "` | " << Code(alias.type) << " | `" << GuidText(alias.guid) << "` |\n";
}

} // namespace

std::string MarkdownReference(const LibraryDescription& library)
{
    std::ostringstream out;
    out << "# " << Cell(library.name) << " reference\n\n";
    out << "<!-- Generated by tolva_reference from the type library embedded in TolvaKit.dll and the controls' own\n"
           "     property-bag writes: do not edit. Regenerate with scripts/update-reference.sh. -->\n\n";
    out << "Type library `" << Cell(library.name) << "` " << library.majorVersion << "." << library.minorVersion
        << ", `" << GuidText(library.guid) << "`: " << Cell(library.help) << ".\n\n";
    out << "Types are written as Visual Basic names them; `ByRef` arguments of events reach the control back.\n\n";
    out << "Classes:";
    for (const ControlClassDescription& c : library.classes)
        out << (&c == &library.classes.front() ? " " : ", ") << "[" << Cell(c.name) << "](#" << Utf8(Anchor(c.name))
            << ")";
    out << ". [Enumerations](#enumerations), [aliases](#aliases).\n\n";
    for (const ControlClassDescription& c : library.classes)
        WriteClass(out, c);
    WriteEnumerations(out, library.enumerations);
    WriteAliases(out, library.aliases);
    return out.str();
}

} // namespace tolva::reference
