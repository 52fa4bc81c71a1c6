#pragma once
#include "core/string.h"
#include "platform/win32/windows_api.h"
#include <oaidl.h>
#include <span>

namespace tolva::host {

// The log line of an event: "cmdOK_Click", "cmdOK_MouseDown 1, 0, 750, 75". Numbers are
// written in their shortest exact form, texts quoted, booleans True or False.
String EventLine(StringView object, StringView event, std::span<VARIANT*> arguments);

// One argument as the log shows it (a reference shows what it refers to).
String ArgumentText(const VARIANT& value);

} // namespace tolva::host
