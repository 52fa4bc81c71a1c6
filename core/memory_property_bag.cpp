#include "core/memory_property_bag.h"

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
    if (value == defaultValue)
        Erase(key);
    else
        Set(key, value);
}

void MemoryPropertyBag::Set(StringView key, Variant value)
{
    const auto [position, added] = m_positions.try_emplace(String(key), m_entries.size());
    if (added)
        m_entries.emplace_back(String(key), std::move(value));
    else
        m_entries[position->second].second = std::move(value);
}

void MemoryPropertyBag::Erase(StringView key)
{
    const auto found = m_positions.find(String(key));
    if (found == m_positions.end())
        return;
    const size_t erased = found->second;
    m_positions.erase(found);
    m_entries.erase(m_entries.begin() + std::ptrdiff_t(erased));
    for (auto& [_, position] : m_positions)
        if (position > erased)
            --position;
}

const Variant* MemoryPropertyBag::Find(StringView key) const
{
    const auto found = m_positions.find(String(key));
    return found != m_positions.end() ? &m_entries[found->second].second : nullptr;
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
