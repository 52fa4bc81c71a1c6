#pragma once
#include "controls/list/cell_chunk.h"
#include "core/string.h"
#include "core/variant.h"
#include <cstdint>
#include <vector>

namespace tolva {

// One column of the list: its items (tkRow records: the cell text Data and the number Attr) in
// row order, numbered from 1 as a collection numbers them. The items are kept in runs of cells
// with a table of where each run starts, so that finding an item is a binary search and adding
// one anywhere moves the cells of a single run.
class tkRows {
public:
    // Inserts an item with Data = data before position before when 0 < before <= Count;
    // otherwise (-1, 0, past the end) appends it.
    void Add(StringView data, int32_t before);
    // Removes the item at position index; outside 1..Count the collection's Subscript out of
    // range error (9).
    void Remove(int32_t index);
    int32_t Count() const { return m_count; }

    // The position of the item that vntIndexKey names, as a collection's Item finds it: a text
    // is a key, and items have none (Invalid procedure call, 5); a number is rounded to a whole
    // position, which must lie in 1..Count (Subscript out of range, 9).
    int32_t Item(const Variant& vntIndexKey) const;

    // The fields of the item at a position in 1..Count.
    StringView Data(int32_t position) const;
    void SetData(int32_t position, StringView data);
    int32_t Attr(int32_t position) const;
    void SetAttr(int32_t position, int32_t attr);

    size_t MemoryBytes() const;

private:
    struct Place {
        size_t chunk;
        size_t offset;
    };
    Place Locate(int32_t position) const;
    void Insert(size_t index, StringView data);
    void Append(StringView data);

    std::vector<CellChunk> m_chunks;
    std::vector<int32_t> m_starts; // the 0-based row of each run's first cell
    int32_t m_count = 0;
    mutable size_t m_lastChunk = 0; // where the last lookup ended: rows are mostly read in order
};

} // namespace tolva
