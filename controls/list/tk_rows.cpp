#include "controls/list/tk_rows.h"
#include "core/automation_error.h"
#include <algorithm>
#include <limits>

namespace tolva {

namespace {

[[noreturn]] void ThrowOutOfRange()
{
    throw AutomationError::RunTime(RunTimeError::SubscriptOutOfRange);
}

} // namespace

void tkRows::Add(StringView data, int32_t before)
{
    if (m_count == std::numeric_limits<int32_t>::max())
        throw AutomationError::RunTime(RunTimeError::OutOfMemory);
    if (before > 0 && before <= m_count)
        Insert(size_t(before - 1), data);
    else
        Append(data);
    ++m_count;
}

// Filling a list appends: when a new run begins, the run before the one just filled is trimmed
// to its size, so a list filled from the top holds little spare room. The run just filled is
// left as it is, because the texts may come one cell behind the appends (a column made before
// the rows keeps a spare cell at its end) and its last cell still gets its text.
void tkRows::Append(StringView data)
{
    if (m_chunks.empty() || m_chunks.back().Full()) {
        if (m_chunks.size() >= 2)
            m_chunks[m_chunks.size() - 2].Trim();
        m_chunks.emplace_back();
        m_starts.push_back(m_count);
    }
    m_chunks.back().Insert(m_chunks.back().Size(), data);
}

// A full run is split in halves first, so a run never holds more than its capacity.
void tkRows::Insert(size_t index, StringView data)
{
    Place place = Locate(int32_t(index + 1));
    if (m_chunks[place.chunk].Full()) {
        constexpr size_t half = CellChunk::Capacity / 2;
        m_chunks.insert(m_chunks.begin() + ptrdiff_t(place.chunk + 1), m_chunks[place.chunk].SplitOff(half));
        m_starts.insert(m_starts.begin() + ptrdiff_t(place.chunk + 1), m_starts[place.chunk] + int32_t(half));
        if (place.offset >= half) {
            ++place.chunk;
            place.offset -= half;
        }
    }
    m_chunks[place.chunk].Insert(place.offset, data);
    for (size_t k = place.chunk + 1; k < m_starts.size(); ++k)
        ++m_starts[k];
}

// An emptied run goes; a run that shrank to a quarter joins the next when both fit in half a run.
void tkRows::Remove(int32_t index)
{
    if (index < 1 || index > m_count)
        ThrowOutOfRange();
    const Place place = Locate(index);
    CellChunk& chunk = m_chunks[place.chunk];
    chunk.Erase(place.offset);
    --m_count;
    for (size_t k = place.chunk + 1; k < m_starts.size(); ++k)
        --m_starts[k];
    const size_t next = place.chunk + 1;
    if (chunk.Size() == 0) {
        m_chunks.erase(m_chunks.begin() + ptrdiff_t(place.chunk));
        m_starts.erase(m_starts.begin() + ptrdiff_t(place.chunk));
    } else if (next < m_chunks.size() && chunk.Size() < CellChunk::Capacity / 4
        && chunk.Size() + m_chunks[next].Size() <= CellChunk::Capacity / 2) {
        chunk.Absorb(m_chunks[next]);
        m_chunks.erase(m_chunks.begin() + ptrdiff_t(next));
        m_starts.erase(m_starts.begin() + ptrdiff_t(next));
    }
    m_lastChunk = 0;
}

int32_t tkRows::Item(const Variant& vntIndexKey) const
{
    if (vntIndexKey.Holds<String>())
        throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall);
    const int32_t position = vntIndexKey.ToInt32();
    if (position < 1 || position > m_count)
        ThrowOutOfRange();
    return position;
}

tkRows::Place tkRows::Locate(int32_t position) const
{
    const int32_t row = position - 1;
    size_t chunk = m_lastChunk;
    const bool inLast = chunk < m_chunks.size() && row >= m_starts[chunk]
        && size_t(row - m_starts[chunk]) < m_chunks[chunk].Size();
    if (!inLast) {
        chunk = size_t(std::upper_bound(m_starts.begin(), m_starts.end(), row) - m_starts.begin()) - 1;
        m_lastChunk = chunk;
    }
    return Place { chunk, size_t(row - m_starts[chunk]) };
}

StringView tkRows::Data(int32_t position) const
{
    const Place place = Locate(position);
    return m_chunks[place.chunk].Text(place.offset);
}

void tkRows::SetData(int32_t position, StringView data)
{
    const Place place = Locate(position);
    m_chunks[place.chunk].SetText(place.offset, data);
}

int32_t tkRows::Attr(int32_t position) const
{
    const Place place = Locate(position);
    return m_chunks[place.chunk].Number(place.offset);
}

void tkRows::SetAttr(int32_t position, int32_t attr)
{
    const Place place = Locate(position);
    m_chunks[place.chunk].SetNumber(place.offset, attr);
}

size_t tkRows::MemoryBytes() const
{
    size_t bytes = sizeof(tkRows) + m_starts.capacity() * sizeof(int32_t)
        + (m_chunks.capacity() - m_chunks.size()) * sizeof(CellChunk);
    for (const CellChunk& chunk : m_chunks)
        bytes += chunk.MemoryBytes();
    return bytes;
}

} // namespace tolva
