#include "core/list_box.h"
#include "core/automation_error.h"
#include <algorithm>

namespace tolva {

namespace {

char16_t Folded(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c;
}

bool LessIgnoringCase(StringView a, StringView b)
{
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(), [](char16_t x, char16_t y) { return Folded(x) < Folded(y); });
}

} // namespace

void ListBox::CheckIndex(int32_t index, int32_t first, int32_t last)
{
    if (index < first || index > last)
        throw AutomationError::RunTime(RunTimeError::InvalidPropertyValue);
}

int32_t ListBox::SortedPlace(StringView item) const
{
    const auto place = std::upper_bound(m_items.begin(), m_items.end(), item,
        [](StringView value, const String& element) { return LessIgnoringCase(value, element); });
    return int32_t(place - m_items.begin());
}

void ListBox::AddItem(StringView item, std::optional<int32_t> index)
{
    if (index && (*index < 0 || *index > ListCount()))
        throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall);
    const int32_t at = index ? *index : m_sorted ? SortedPlace(item) : ListCount();
    m_items.insert(m_items.begin() + at, String(item));
    // The selection stays on its item.
    if (m_listIndex >= at)
        ++m_listIndex;
    m_newIndex = at;
}

void ListBox::RemoveItem(int32_t index)
{
    CheckIndex(index, 0, ListCount() - 1);
    m_items.erase(m_items.begin() + index);
    if (m_listIndex == index)
        m_listIndex = -1;
    else if (m_listIndex > index)
        --m_listIndex;
    m_topIndex = std::clamp(m_topIndex, 0, std::max(0, ListCount() - 1));
    m_newIndex = -1;
}

void ListBox::Clear()
{
    m_items.clear();
    m_listIndex = -1;
    m_newIndex = -1;
    m_topIndex = 0;
}

String ListBox::List(int32_t index) const
{
    return index >= 0 && index < ListCount() ? m_items[size_t(index)] : String();
}

void ListBox::SetList(int32_t index, StringView item)
{
    CheckIndex(index, 0, ListCount());
    if (index == ListCount())
        m_items.emplace_back(item);
    else
        m_items[size_t(index)] = item;
}

void ListBox::SetListIndex(int32_t index)
{
    CheckIndex(index, -1, ListCount() - 1);
    m_listIndex = index;
}

void ListBox::SetTopIndex(int32_t index)
{
    CheckIndex(index, 0, ListCount() - 1);
    m_topIndex = index;
}

} // namespace tolva
