#pragma once
#include <string>

namespace tolva::win32 {

// A run-time or compile error the script engine reported, where it happened.
struct ScriptError {
    long code = 0; // the error's HRESULT (0x800A.... for the languages' own errors)
    std::wstring source; // "Microsoft VBScript runtime error", or the failing object's source
    std::wstring description;
    unsigned long line = 0; // 1-based
    long column = 0; // 1-based
    std::wstring lineText;

    // As cscript prints it: "file(line, column) source: description".
    std::wstring Format(const std::wstring& fileName) const;
};

} // namespace tolva::win32
