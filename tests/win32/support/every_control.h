#pragma once
#include "platform/win32/com/control_class.h"
#include <gtest/gtest.h>
#include <string>

namespace tolva::win32::test {

// The class's name, for the tests of INSTANTIATE_TEST_SUITE_P(..., ValuesIn(ControlClasses())).
std::string ClassName(const testing::TestParamInfo<const ControlClass*>& info);

// Fails the current test unless every property of controlClass that takes no index reads through
// control's Invoke: what a client checks after handing the control anything it liked.
void ExpectEveryPropertyReads(IDispatch* control, const ControlClass& controlClass);

} // namespace tolva::win32::test
