#pragma once
#include "core/automation_error.h"
#include "core/property_bag.h"
#include <charconv>
#include <cstdint>
#include <vector>

namespace tolva {

// An array property in a property bag: the key prefix + "Count" holds the array's upper bound,
// then one key per element, prefix followed by its decimal index from 1. Element 0 is never
// saved. Elements are written without a default, so every one is stored.
inline String ArrayElementKey(StringView prefix, int32_t index)
{
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, index).ptr;
    String key(prefix);
    key.append(digits, end);
    return key;
}

template <class T> void WriteArray(PropertyBag& bag, StringView prefix, const std::vector<T>& elements)
{
    const auto upperBound = int32_t(elements.size()) - 1;
    bag.WriteProperty(String(prefix) + u"Count", upperBound, int32_t(0));
    for (int32_t i = 1; i <= upperBound; ++i)
        bag.WriteProperty(ArrayElementKey(prefix, i), elements[size_t(i)], Variant());
}

// Reads an array written by WriteArray into elements 0 to the stored count; a missing element
// reads as the type's empty value. A negative count is the subscript error of sizing an array
// below 0; one above maxUpperBound (a hostile or corrupt bag) is refused as out of memory
// rather than read key by key.
template <class T>
std::vector<T> ReadArray(PropertyBag& bag, StringView prefix, int32_t maxUpperBound, T (Variant::*convert)() const)
{
    const int32_t upperBound = bag.ReadProperty(String(prefix) + u"Count", int32_t(0)).ToInt32();
    if (upperBound < 0)
        throw AutomationError::RunTime(RunTimeError::SubscriptOutOfRange);
    if (upperBound > maxUpperBound)
        throw AutomationError::RunTime(RunTimeError::OutOfMemory);
    std::vector<T> elements(size_t(upperBound) + 1);
    for (int32_t i = 1; i <= upperBound; ++i)
        elements[size_t(i)] = (bag.ReadProperty(ArrayElementKey(prefix, i), Variant()).*convert)();
    return elements;
}

} // namespace tolva
