#pragma once
#include "platform/win32/com/dispatch_member.h"
#include <span>

namespace tolva::win32::test {

// Fails the current test where two members of a binding table share an id, or a name regardless
// of case: GetIDsOfNames and Invoke would find only the first of them.
void ExpectUniqueIdsAndNames(std::span<const DispatchMember> members);

} // namespace tolva::win32::test
