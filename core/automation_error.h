#pragma once
#include "core/string.h"
#include <cstdint>
#include <stdexcept>

namespace tolva {

// An error that the host must see. The COM layer turns it into EXCEPINFO / IErrorInfo;
// nothing else catches it except where a routine deliberately suppresses errors.
class AutomationError : public std::runtime_error {
public:
    AutomationError(int32_t hresult, String source, String description);

    int32_t HResult() const { return m_hresult; }
    const String& Source() const { return m_source; }
    const String& Description() const { return m_description; }

    // A Visual Basic run-time error (5, 6, 9, 11, 13, 380 ...) as the language reports it:
    // HRESULT 0x800A0000 + number and the language's own description.
    static AutomationError RunTime(int number, String source = u"TolvaKit");

private:
    int32_t m_hresult;
    String m_source;
    String m_description;
};

namespace RunTimeError {
constexpr int InvalidProcedureCall = 5;
constexpr int Overflow = 6;
constexpr int OutOfMemory = 7;
constexpr int SubscriptOutOfRange = 9;
constexpr int DivisionByZero = 11;
constexpr int TypeMismatch = 13;
constexpr int InvalidPropertyValue = 380;
}

} // namespace tolva
