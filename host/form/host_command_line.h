#pragma once
#include "core/string.h"
#include <stdexcept>
#include <vector>

namespace tolva {

// A command line TolvaHost cannot follow; what() says why.
class CommandLineError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

// TolvaHost <form.frm> [/log <file>] [/save <out.frm>] [/play <steps>] [/shots <folder>] [/close] [/design]
//   /log    events go to the file instead of standard output
//   /save   the form is written back to a form file when it closes
//   /play   a file of scripted input steps, played once the form is shown; the form closes after
//   /shots  where the "shot" steps of /play write their PNG files (default: the current folder)
//   /close  closes the form as soon as it is shown (with /save: a load and save round trip)
//   /design opens the form in design mode: select controls, edit them through their property
//           pages (F4), save with Ctrl+S (to the /save file, else the form file itself)
// Options may come in any order and are case-insensitive; "-" works as well as "/".
struct HostCommandLine {
    String formPath;
    String logPath;
    String savePath;
    String playPath;
    String shotsFolder;
    bool closeWhenShown = false;
    bool design = false;

    static HostCommandLine Parse(const std::vector<String>& arguments);
    static const char* Usage();
};

} // namespace tolva
