#include "platform/win32/com/ole_formatter.h"
#include "core/automation_error.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/format_result_bound.h"
#include "platform/win32/com/ole_variant.h"
#include "platform/win32/com/variant_conversion.h"
#include <new>

namespace tolva::win32 {

namespace {

// The language's defaults for Format: weeks start on Sunday, the first week holds 1 January.
constexpr int FirstDayOfWeek = 1;
constexpr int FirstWeekOfYear = 1;

// Wine's VarFormat builds its result in a buffer of 256 characters on the stack and runs past
// its end for longer results (a number of a hundred digits, a picture of many long dates);
// what could come out longer than this is refused as an overflow instead.
constexpr size_t LongestSafeResult = 200;

[[noreturn]] void ThrowFailure(HRESULT hr)
{
    switch (hr) {
    case DISP_E_TYPEMISMATCH:
        throw AutomationError::RunTime(RunTimeError::TypeMismatch);
    case DISP_E_OVERFLOW:
        throw AutomationError::RunTime(RunTimeError::Overflow);
    case DISP_E_DIVBYZERO:
        throw AutomationError::RunTime(RunTimeError::DivisionByZero);
    case E_OUTOFMEMORY:
        throw std::bad_alloc();
    case E_INVALIDARG:
        throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall);
    default:
        throw AutomationError(int32_t(hr), u"TolvaKit", u"The system could not format the value");
    }
}

void Check(HRESULT hr)
{
    if (FAILED(hr))
        ThrowFailure(hr);
}

// A BSTR that holds text for the conversions, which read it as OLECHAR*.
OLECHAR* Text(const Bstr& text)
{
    return text.Get() ? text.Get() : const_cast<OLECHAR*>(L"");
}

} // namespace

String OleFormatter::Format(const Variant& value, StringView format)
{
    OleVariant input;
    ToOleVariant(value, *input.Put());
    if (!format.empty() && FormatResultBound(input.Get(), format) > LongestSafeResult)
        throw AutomationError::RunTime(RunTimeError::Overflow);
    Bstr expression(format);
    Bstr result;
    Check(VarFormat(&input.Get(), format.empty() ? nullptr : expression.Get(), FirstDayOfWeek, FirstWeekOfYear, 0,
        result.Put()));
    return FromBstr(result.Get());
}

Currency OleFormatter::TextToCurrency(StringView text)
{
    Bstr input(text);
    CY amount = {};
    Check(VarCyFromStr(Text(input), LOCALE_USER_DEFAULT, 0, &amount));
    return Currency::FromRaw(amount.int64);
}

OleDate OleFormatter::TextToDate(StringView text)
{
    Bstr input(text);
    DATE date = 0;
    Check(VarDateFromStr(Text(input), LOCALE_USER_DEFAULT, 0, &date));
    return OleDate(date);
}

bool OleFormatter::IsDate(StringView text)
{
    Bstr input(text);
    DATE date = 0;
    return SUCCEEDED(VarDateFromStr(Text(input), LOCALE_USER_DEFAULT, 0, &date));
}

bool OleFormatter::IsNumeric(StringView text)
{
    Bstr input(text);
    double number = 0;
    return SUCCEEDED(VarR8FromStr(Text(input), LOCALE_USER_DEFAULT, 0, &number));
}

OleDate OleFormatter::Today()
{
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    now.wHour = now.wMinute = now.wSecond = now.wMilliseconds = 0;
    DATE date = 0;
    if (!SystemTimeToVariantTime(&now, &date))
        ThrowFailure(E_FAIL);
    return OleDate(date);
}

} // namespace tolva::win32
