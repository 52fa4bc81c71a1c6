#pragma once
#include "core/string.h"
#include <cstdint>
#include <string_view>
#include <vector>

namespace tolva {

// One step of a scripted interaction with a hosted form. Points are pixels of a control's
// client area (or of the form's, when the target is the form's own name).
struct PlayStep {
    enum class Kind {
        Move, // move <target> <x> <y>: the pointer
        Press, // press [left|right]: a mouse button goes down where the pointer is
        Release, // release [left|right]
        Click, // click <target> <x> <y>: move, press and release the left button
        Key, // key <name>: a key goes down and up (Enter, Space, Escape, Tab, Down, Add, A, 1 ...)
        KeyDown, // keydown <name>
        KeyUp, // keyup <name>
        Alt, // alt <key>: the key with Alt held, an access key
        Type, // type <text>: the characters of a word, as typed
        Wait, // wait <milliseconds>
        Shot, // shot <name>: a PNG picture of the form (with any open menu or drop-down) named <name>.png
        Close, // close: closes the form
    };
    Kind kind;
    String target; // a control or form name (or frame, the open property frame); a key name; a text; a picture name
    int32_t x = 0;
    int32_t y = 0;
    int32_t milliseconds = 0;
    bool rightButton = false;
    int line = 0;
};

// Reads a play script: one step per line, blank lines and lines starting with # ignored. A bad
// line throws FormSyntaxError with its number.
std::vector<PlayStep> ReadPlayScript(std::string_view text);

} // namespace tolva
