#include "controls/list/cell_chunk.h"
#include "core/automation_error.h"
#include <limits>

namespace tolva {

namespace {

// Garbage is collected once it outweighs the live text and is worth a copy.
constexpr size_t CompactionThreshold = 4096;

} // namespace

CellChunk::Cell CellChunk::Stored(StringView text)
{
    if (text.empty())
        return Cell { 0, 0, 0 };
    if (m_text.size() + text.size() > std::numeric_limits<uint32_t>::max())
        throw AutomationError::RunTime(RunTimeError::OutOfMemory); // a pool is addressed in 32 bits
    const auto offset = uint32_t(m_text.size());
    m_text.insert(m_text.end(), text.begin(), text.end());
    return Cell { offset, uint32_t(text.size()), 0 };
}

void CellChunk::SetText(size_t index, StringView text)
{
    Cell& cell = m_cells[index];
    if (text.size() <= cell.length) {
        // A text that fits overwrites the old one in place.
        std::copy(text.begin(), text.end(), m_text.begin() + cell.offset);
        m_unused += cell.length - text.size();
        cell.length = uint32_t(text.size());
        return;
    }
    m_unused += cell.length;
    const int32_t number = cell.number;
    Cell stored = Stored(text);
    stored.number = number;
    m_cells[index] = stored;
    CompactWhenWasteful();
}

void CellChunk::Insert(size_t index, StringView text)
{
    m_cells.insert(m_cells.begin() + ptrdiff_t(index), Stored(text));
}

void CellChunk::Erase(size_t index)
{
    m_unused += m_cells[index].length;
    m_cells.erase(m_cells.begin() + ptrdiff_t(index));
    CompactWhenWasteful();
}

CellChunk CellChunk::SplitOff(size_t from)
{
    CellChunk tail;
    tail.m_cells.reserve(Capacity);
    for (size_t i = from; i < m_cells.size(); ++i) {
        Cell moved = tail.Stored(Text(i));
        moved.number = m_cells[i].number;
        tail.m_cells.push_back(moved);
        m_unused += m_cells[i].length;
    }
    m_cells.resize(from);
    CompactWhenWasteful();
    return tail;
}

void CellChunk::Absorb(CellChunk& other)
{
    for (size_t i = 0; i < other.m_cells.size(); ++i) {
        Cell moved = Stored(other.Text(i));
        moved.number = other.m_cells[i].number;
        m_cells.push_back(moved);
    }
    other.m_cells.clear();
    other.m_text.clear();
    other.m_unused = 0;
}

void CellChunk::Trim()
{
    m_cells.shrink_to_fit();
    m_text.shrink_to_fit();
}

void CellChunk::CompactWhenWasteful()
{
    if (m_unused < CompactionThreshold || m_unused * 2 < m_text.size())
        return;
    std::vector<char16_t> packed;
    packed.reserve(m_text.size() - m_unused);
    for (Cell& cell : m_cells) {
        const auto offset = uint32_t(packed.size());
        packed.insert(packed.end(), m_text.begin() + cell.offset, m_text.begin() + cell.offset + cell.length);
        cell.offset = cell.length ? offset : 0;
    }
    m_text = std::move(packed);
    m_unused = 0;
}

size_t CellChunk::MemoryBytes() const
{
    return sizeof(CellChunk) + m_cells.capacity() * sizeof(Cell) + m_text.capacity() * sizeof(char16_t);
}

} // namespace tolva
