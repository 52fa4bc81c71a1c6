#pragma once
#include "platform/win32/com/ole_variant.h"
#include <initializer_list>
#include <oaidl.h>
#include <string>

namespace tolva::win32::test {

// Late-bound calls as a client language makes them. Each returns the HRESULT of Invoke.

// Invoke with the arguments in the caller's order (DISPPARAMS holds them last first); with
// namedValue the last one is the assigned value, named DISPID_PROPERTYPUT as compiled clients
// pass it. Nothing is allocated, so that a benchmark times the object alone; at most 16
// arguments.
HRESULT InvokeWith(IDispatch* object, DISPID id, WORD flags, std::initializer_list<VARIANT> arguments, bool namedValue,
    VARIANT* result = nullptr, EXCEPINFO* exception = nullptr, UINT* argumentError = nullptr);

DISPID IdOf(IDispatch* object, const wchar_t* name);
HRESULT Get(IDispatch* object, const wchar_t* name, OleVariant& result);
HRESULT Put(IDispatch* object, const wchar_t* name, const VARIANT& value, WORD flags = DISPATCH_PROPERTYPUT);
// An indexed property assignment: name(indexes...) = value.
HRESULT PutAt(IDispatch* object, const wchar_t* name, std::initializer_list<VARIANT> indexes, const VARIANT& value,
    EXCEPINFO* exception = nullptr);
HRESULT Call(IDispatch* object, DISPID id, WORD flags, std::initializer_list<VARIANT> arguments, OleVariant& result,
    EXCEPINFO* exception = nullptr, UINT* argumentError = nullptr);

// A text argument, freed at the end of the full expression that uses it.
class TextArgument {
public:
    explicit TextArgument(const wchar_t* text);
    ~TextArgument();
    TextArgument(const TextArgument&) = delete;
    TextArgument& operator=(const TextArgument&) = delete;
    operator const VARIANT&() const { return m_value; }

private:
    VARIANT m_value;
};

// An EXCEPINFO an Invoke may fill, whose texts are freed with it.
struct ExceptionInfo : EXCEPINFO {
    ExceptionInfo()
        : EXCEPINFO {}
    { }
    ~ExceptionInfo();
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
};

// Values as the clients send them.
VARIANT Long(LONG value);
VARIANT Short(SHORT value);
VARIANT Double(double value);
VARIANT Bool(bool value);
TextArgument Text(const wchar_t* value);
VARIANT Object(IDispatch* value);
VARIANT BorrowedText(BSTR value); // a text the caller holds, passed without a copy
VARIANT Missing();

// A result read as a number or text, for assertions.
LONG AsLong(const OleVariant& value);
std::wstring AsText(const OleVariant& value);

} // namespace tolva::win32::test
