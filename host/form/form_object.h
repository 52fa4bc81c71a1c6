#pragma once
#include "core/string.h"
#include "core/variant.h"
#include <utility>
#include <vector>

namespace tolva {

// One "Key = value" line of a form file, or a BeginProperty group (a font).
struct FormProperty {
    String key;
    Variant value;
    int line = 0; // where it was read; 0 for a property made in memory
};

// A "Begin <type> <name>" block of a form file: the form itself, a control or a menu.
// Properties keep their order; keys compare without regard to case, as the language does.
struct FormObject {
    FormObject() = default;
    FormObject(String type, String name, int line = 0)
        : type(std::move(type))
        , name(std::move(name))
        , line(line)
    { }

    String type; // "VB.Form", "VB.Menu", "TolvaKit.TolvaCommand" ...
    String name;
    std::vector<FormProperty> properties;
    std::vector<FormObject> children;
    int line = 0;

    const FormProperty* Find(StringView key) const;
    FormProperty* Find(StringView key);
    // Replaces the value of an existing key in place, or appends the key.
    void Set(StringView key, Variant value);
    bool Remove(StringView key);

    // The first descendant (depth first) with this name, or nullptr.
    const FormObject* FindDescendant(StringView name) const;
};

// Case-insensitive comparison of ASCII identifiers.
bool SameIdentifier(StringView a, StringView b);

} // namespace tolva
