#include "core/automation_error.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

TEST(AutomationError, RunTimeErrorsCarryTheLanguagesNumberAndDescription)
{
    const struct {
        int number;
        const char16_t* description;
    } cases[] = {
        { 5, u"Invalid procedure call or argument" },
        { 6, u"Overflow" },
        { 9, u"Subscript out of range" },
        { 11, u"Division by zero" },
        { 13, u"Type mismatch" },
        { 380, u"Invalid property value" },
        { 438, u"Object doesn't support this property or method" },
    };
    for (const auto& c : cases) {
        const AutomationError error = AutomationError::RunTime(c.number);
        EXPECT_EQ(uint32_t(error.HResult()), 0x800A0000u + uint32_t(c.number));
        EXPECT_EQ(error.Description(), c.description);
        EXPECT_EQ(error.Source(), u"TolvaKit");
    }
    EXPECT_EQ(uint32_t(AutomationError::RunTime(6).HResult()), 0x800A0006u);
}

TEST(AutomationError, KeepsAnExplicitErrorAndShowsItsDescriptionAsMessage)
{
    const AutomationError error(int32_t(0x800455F1), u"TolvaList", u"Subscript Out Of Range");
    EXPECT_EQ(uint32_t(error.HResult()), 0x800455F1u);
    EXPECT_EQ(error.Source(), u"TolvaList");
    EXPECT_STREQ(error.what(), "Subscript Out Of Range");
}

TEST(AutomationError, AnUnknownNumberGetsTheGenericDescription)
{
    EXPECT_EQ(AutomationError::RunTime(1234).Description(), u"Application-defined or object-defined error");
}

} // namespace
} // namespace tolva
