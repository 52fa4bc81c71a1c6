#pragma once
#include "core/string.h"
#include "platform/win32/windows_api.h"
#include <oaidl.h>
#include <span>

namespace tolva::host {

// The form's code as the form calls it: Sub mnuFileOpen_Click when that menu item is chosen.
class EventHandlers {
public:
    virtual ~EventHandlers() = default;
    // Runs the procedure when the code has one; nothing happens otherwise.
    virtual void Run(StringView procedure, std::span<VARIANT*> arguments) = 0;
};

} // namespace tolva::host
