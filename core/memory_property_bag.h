#pragma once
#include "core/property_bag.h"
#include <unordered_map>
#include <utility>
#include <vector>

namespace tolva {

// An in-memory bag that keeps entries in the order they were first written and records every
// operation, so that key order and defaults can be checked. Like the hosts' bags, it omits a
// written value equal to its default (and removes an entry stored earlier under that key).
// Keys are found through an index: a control with thousands of array elements saves in linear
// time.
class MemoryPropertyBag final : public PropertyBag {
public:
    enum class OperationKind { Read, Write };
    struct Operation {
        OperationKind kind;
        String key;
        Variant defaultValue;
        bool operator==(const Operation&) const = default;
    };

    Variant ReadProperty(StringView key, const Variant& defaultValue) override;
    void WriteProperty(StringView key, const Variant& value, const Variant& defaultValue) override;

    void Set(StringView key, Variant value); // puts a value directly, as a loaded form would
    const Variant* Find(StringView key) const;
    const std::vector<std::pair<String, Variant>>& Entries() const { return m_entries; }
    const std::vector<Operation>& Operations() const { return m_operations; }
    std::vector<String> KeysOf(OperationKind kind) const;
    void ClearOperations() { m_operations.clear(); }

private:
    void Erase(StringView key);

    std::vector<std::pair<String, Variant>> m_entries;
    std::unordered_map<String, size_t> m_positions; // key -> index in m_entries
    std::vector<Operation> m_operations;
};

} // namespace tolva
