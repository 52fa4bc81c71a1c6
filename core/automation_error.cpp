#include "core/automation_error.h"

namespace tolva {

namespace {

// The descriptions the language gives its run-time errors.
StringView RunTimeDescription(int number)
{
    switch (number) {
    case 5:
        return u"Invalid procedure call or argument";
    case 6:
        return u"Overflow";
    case 7:
        return u"Out of memory";
    case 9:
        return u"Subscript out of range";
    case 11:
        return u"Division by zero";
    case 13:
        return u"Type mismatch";
    case 28:
        return u"Out of stack space";
    case 91:
        return u"Object variable or With block variable not set";
    case 94:
        return u"Invalid use of Null";
    case 380:
        return u"Invalid property value";
    case 381:
        return u"Invalid property array index";
    case 424:
        return u"Object required";
    case 438:
        return u"Object doesn't support this property or method";
    case 449:
        return u"Argument not optional";
    case 450:
        return u"Wrong number of arguments or invalid property assignment";
    default:
        return u"Application-defined or object-defined error";
    }
}

} // namespace

AutomationError::AutomationError(int32_t hresult, String source, String description)
    : std::runtime_error(ToUtf8(description))
    , m_hresult(hresult)
    , m_source(std::move(source))
    , m_description(std::move(description))
{ }

AutomationError AutomationError::RunTime(int number, String source)
{
    const auto hresult = int32_t(0x800A0000u + uint32_t(number & 0xFFFF));
    return AutomationError(hresult, std::move(source), String(RunTimeDescription(number)));
}

} // namespace tolva
