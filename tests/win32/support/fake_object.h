#pragma once
#include "platform/win32/com/com_object.h"

namespace tolva::win32::test {

// The test doubles of host objects are plain COM objects.
template <class... Interfaces> using FakeObject = ComObject<Interfaces...>;

} // namespace tolva::win32::test
