#pragma once
#include "platform/win32/windows_api.h"
#include <string>
#include <vector>

namespace tolva::reference {

// What the reference documents of the type library, in declaration order, with the types
// written as Visual Basic names them.

struct Parameter {
    std::wstring name;
    std::wstring type;
    bool byReference = false;
    bool optional = false;
    std::wstring defaultValue; // empty when an optional parameter has none
};

struct Member {
    std::wstring name;
    MEMBERID id = 0;
    bool property = false; // else a method or an event
    bool get = false, let = false, set = false; // a property's accessors
    std::wstring type; // a property's type or a method's result; empty for none
    std::vector<Parameter> parameters; // of the method, event or property get
    std::wstring help;
};

struct Interface {
    std::wstring name;
    GUID iid {};
    std::wstring help;
    std::vector<Member> members;
};

// A key the control writes into a property bag, with the type and value of its default.
struct PersistedProperty {
    std::wstring key;
    std::wstring type;
    std::wstring defaultValue;
};

struct ControlClassDescription {
    std::wstring name;
    GUID clsid {};
    std::wstring help;
    Interface dispatch; // the default interface
    Interface events; // the default source interface
    std::vector<PersistedProperty> persisted;
};

struct Enumeration {
    std::wstring name;
    std::wstring help;
    std::vector<std::pair<std::wstring, LONG>> members;
};

struct Alias {
    std::wstring name;
    std::wstring type;
    GUID guid {};
};

struct LibraryDescription {
    std::wstring name;
    std::wstring help;
    GUID guid {};
    WORD majorVersion = 0, minorVersion = 0;
    std::vector<ControlClassDescription> classes;
    std::vector<Enumeration> enumerations;
    std::vector<Alias> aliases;
};

} // namespace tolva::reference
