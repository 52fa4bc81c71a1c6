#include "core/memory_property_bag.h"
#include <algorithm>

namespace tolva {

Variant MemoryPropertyBag::ReadProperty(StringView key, const Variant& defaultValue)
{
    m_operations.push_back({ OperationKind::Read, String(key), defaultValue });
    const Variant* stored = Find(key);
    return stored ? *stored : defaultValue;
}

void MemoryPropertyBag::WriteProperty(StringView key, const Variant& value, const Variant& defaultValue)
{
    m_operations.push_back({ OperationKind::Write, String(key), defaultValue });
    if (value == defaultValue) {
        std::erase_if(m_entries, [key](const auto& entry) { return entry.first == key; });
        return;
    }
    Set(key, value);
}

void MemoryPropertyBag::Set(StringView key, Variant value)
{
    auto found
        = std::find_if(m_entries.begin(), m_entries.end(), [key](const auto& entry) { return entry.first == key; });
    if (found != m_entries.end())
        found->second = std::move(value);
    else
        m_entries.emplace_back(String(key), std::move(value));
}

const Variant* MemoryPropertyBag::Find(StringView key) const
{
    auto found
        = std::find_if(m_entries.begin(), m_entries.end(), [key](const auto& entry) { return entry.first == key; });
    return found != m_entries.end() ? &found->second : nullptr;
}

std::vector<String> MemoryPropertyBag::KeysOf(OperationKind kind) const
{
    std::vector<String> keys;
    for (const auto& operation : m_operations) {
        if (operation.kind == kind)
            keys.push_back(operation.key);
    }
    return keys;
}

} // namespace tolva
