#include "controls/tabs/tab_store.h"
#include "core/automation_error.h"
#include "core/property_bag_array.h"

namespace tolva {

namespace {

template <class T> size_t Checked(const std::vector<T>& elements, int32_t index)
{
    if (index < 0 || size_t(index) >= elements.size())
        throw AutomationError::RunTime(RunTimeError::SubscriptOutOfRange);
    return size_t(index);
}

} // namespace

const String& TabStore::Caption(int32_t index) const
{
    return m_captions[Checked(m_captions, index)];
}

void TabStore::SetCaption(int32_t index, StringView caption)
{
    m_captions[Checked(m_captions, index)] = caption;
}

int32_t TabStore::Data(int32_t index) const
{
    return m_data[Checked(m_data, index)];
}

void TabStore::SetData(int32_t index, int32_t value)
{
    m_data[Checked(m_data, index)] = value;
}

void TabStore::Resize(int32_t upperBound)
{
    if (upperBound < 0)
        throw AutomationError::RunTime(RunTimeError::SubscriptOutOfRange);
    if (upperBound > MaxUpperBound)
        throw AutomationError::RunTime(RunTimeError::OutOfMemory);
    m_captions.resize(size_t(upperBound) + 1);
    m_data.resize(size_t(upperBound) + 1);
}

void TabStore::Clear()
{
    m_captions.assign(1, String());
    m_data.assign(1, 0);
}

void TabStore::MoveDown(int32_t index, int32_t last)
{
    for (int32_t i = index; i < last; ++i) {
        SetCaption(i, Caption(i + 1));
        SetData(i, Data(i + 1));
    }
}

void TabStore::WriteCaptions(PropertyBag& bag) const
{
    WriteArray(bag, u"Tabs", m_captions);
}

void TabStore::WriteData(PropertyBag& bag) const
{
    WriteArray(bag, u"TabData", m_data);
}

void TabStore::ReadCaptions(PropertyBag& bag)
{
    m_captions = ReadArray(bag, u"Tabs", MaxUpperBound, &Variant::ToString);
}

void TabStore::ReadData(PropertyBag& bag)
{
    m_data = ReadArray(bag, u"TabData", MaxUpperBound, &Variant::ToInt32);
}

} // namespace tolva
