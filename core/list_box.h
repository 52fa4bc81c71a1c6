#pragma once
#include "core/string.h"
#include <cstdint>
#include <optional>
#include <vector>

namespace tolva {

// A standard list box as code sees it, without a window: zero-based items, the selected index
// (-1 for none), the index of the item added last, the first item shown and a Tag string.
//
// An index outside the items is the host's "Invalid property value" (380) for ListIndex,
// TopIndex, RemoveItem and assigning an item; reading an item outside the list answers an
// empty text, as the list box does. Assigning the item just past the end adds it.
class ListBox {
public:
    explicit ListBox(bool sorted = false)
        : m_sorted(sorted)
    { }

    bool Sorted() const { return m_sorted; }
    int32_t ListCount() const { return int32_t(m_items.size()); }

    // At index when one is given (0 to ListCount, else error 5), otherwise at the end, or in
    // its sorted place (case-insensitive, after equal items) when the list is sorted.
    void AddItem(StringView item, std::optional<int32_t> index = std::nullopt);
    void RemoveItem(int32_t index);
    void Clear();

    String List(int32_t index) const;
    void SetList(int32_t index, StringView item);

    int32_t ListIndex() const { return m_listIndex; }
    void SetListIndex(int32_t index); // -1 to ListCount - 1
    // The item added last; -1 when none was, or an item was removed since.
    int32_t NewIndex() const { return m_newIndex; }
    int32_t TopIndex() const { return m_topIndex; }
    void SetTopIndex(int32_t index); // 0 to ListCount - 1

    const String& Tag() const { return m_tag; }
    void SetTag(StringView tag) { m_tag = tag; }

private:
    int32_t SortedPlace(StringView item) const;
    static void CheckIndex(int32_t index, int32_t first, int32_t last);

    bool m_sorted;
    std::vector<String> m_items;
    int32_t m_listIndex = -1;
    int32_t m_newIndex = -1;
    int32_t m_topIndex = 0;
    String m_tag;
};

} // namespace tolva
