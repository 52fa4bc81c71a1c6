#include "host/form/host_command_line.h"
#include "host/form/form_object.h"

namespace tolva {

namespace {

bool IsOption(StringView argument)
{
    return argument.size() > 1 && (argument[0] == u'/' || argument[0] == u'-');
}

String* ValueOption(HostCommandLine& line, StringView name)
{
    return SameIdentifier(name, u"log")  ? &line.logPath
        : SameIdentifier(name, u"save")  ? &line.savePath
        : SameIdentifier(name, u"play")  ? &line.playPath
        : SameIdentifier(name, u"shots") ? &line.shotsFolder
                                         : nullptr;
}

} // namespace

const char* HostCommandLine::Usage()
{
    return "usage: TolvaHost <form.frm> [/log <file>] [/save <out.frm>] [/play <steps>] [/shots <folder>] "
           "[/close] [/design]";
}

HostCommandLine HostCommandLine::Parse(const std::vector<String>& arguments)
{
    HostCommandLine line;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const String& argument = arguments[i];
        if (argument.empty())
            throw CommandLineError("an empty argument");
        const StringView name = IsOption(argument) ? StringView(argument).substr(1) : StringView();
        String* target = ValueOption(line, name);
        if (IsOption(argument) && SameIdentifier(name, u"close")) {
            line.closeWhenShown = true;
            continue;
        }
        if (IsOption(argument) && SameIdentifier(name, u"design")) {
            line.design = true;
            continue;
        }
        if (!target) {
            // Anything else is the form: "/home/me/a.frm" is a path, not an option.
            if (argument[0] == u'-')
                throw CommandLineError("unknown option " + ToUtf8(argument));
            if (!line.formPath.empty())
                throw CommandLineError("more than one form file: " + ToUtf8(argument));
            line.formPath = argument;
            continue;
        }
        if (i + 1 >= arguments.size() || arguments[i + 1].empty())
            throw CommandLineError("option " + ToUtf8(argument) + " needs a value");
        *target = arguments[++i];
    }
    if (line.formPath.empty())
        throw CommandLineError("no form file given");
    return line;
}

} // namespace tolva
