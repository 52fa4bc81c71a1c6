#pragma once
#include "core/string.h"
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tolva {

// A run of consecutive cells of one column: per cell its text and a number, the texts packed in
// one pool of characters owned by the run. A cell costs twelve bytes beyond its characters, and
// inserting or removing a cell moves only the cells of this run.
class CellChunk {
public:
    static constexpr size_t Capacity = 1024;

    size_t Size() const { return m_cells.size(); }
    bool Full() const { return m_cells.size() >= Capacity; }

    StringView Text(size_t index) const
    {
        const Cell& cell = m_cells[index];
        return StringView(m_text.data() + cell.offset, cell.length);
    }
    void SetText(size_t index, StringView text);
    int32_t Number(size_t index) const { return m_cells[index].number; }
    void SetNumber(size_t index, int32_t number) { m_cells[index].number = number; }

    void Insert(size_t index, StringView text);
    void Erase(size_t index);

    // Moves the cells from position `from` on, with their characters, into a new run.
    CellChunk SplitOff(size_t from);
    // Moves every cell of other to the end of this run.
    void Absorb(CellChunk& other);
    // Gives back the room kept for growth: the run is complete and will rarely change.
    void Trim();

    size_t MemoryBytes() const;

private:
    struct Cell {
        uint32_t offset;
        uint32_t length;
        int32_t number;
    };

    Cell Stored(StringView text);
    void CompactWhenWasteful();

    std::vector<Cell> m_cells;
    std::vector<char16_t> m_text;
    size_t m_unused = 0; // characters of the pool that no cell refers to any more
};

} // namespace tolva
