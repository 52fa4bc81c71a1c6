#pragma once
#include "core/automation_error.h"
#include <cstdint>
#include <utility>
#include <vector>

namespace tolva {

// A dynamic array of the form language with indices 0..UpperBound: an index outside is
// Subscript out of range (9), and it is reallocated with or without keeping its elements.
template <class T> class IndexedArray {
public:
    IndexedArray() = default;

    int32_t UpperBound() const { return int32_t(m_items.size()) - 1; }

    const T& operator[](int64_t index) const { return m_items[Checked(index)]; }
    T& operator[](int64_t index) { return m_items[Checked(index)]; }

    // Every element, index 0 included, and a new set of them (at least index 0).
    const std::vector<T>& Elements() const { return m_items; }
    void Assign(std::vector<T> items)
    {
        m_items = std::move(items);
        if (m_items.empty())
            m_items.resize(1);
    }

    // ReDim Preserve: keeps the elements up to the new bound.
    void Preserve(int32_t upperBound) { m_items.resize(SizeFor(upperBound)); }
    // ReDim: every element starts empty again.
    void Reallocate(int32_t upperBound)
    {
        m_items.clear();
        m_items.resize(SizeFor(upperBound));
    }

private:
    size_t Checked(int64_t index) const
    {
        if (index < 0 || index >= int64_t(m_items.size()))
            throw AutomationError::RunTime(RunTimeError::SubscriptOutOfRange);
        return size_t(index);
    }
    static size_t SizeFor(int32_t upperBound)
    {
        if (upperBound < 0)
            throw AutomationError::RunTime(RunTimeError::SubscriptOutOfRange);
        return size_t(upperBound) + 1;
    }

    std::vector<T> m_items = std::vector<T>(1);
};

} // namespace tolva
