#include "tests/win32/support/recording_property_bag.h"

namespace tolva::win32::test {

void* RecordingPropertyBag::Find(REFIID iid)
{
    return iid == IID_IPropertyBag ? static_cast<IPropertyBag*>(this) : nullptr;
}

HRESULT RecordingPropertyBag::Read(LPCOLESTR name, VARIANT* value, IErrorLog*)
{
    m_reads.push_back(name);
    const VARIANT* stored = Find(name);
    if (!stored)
        return E_INVALIDARG;
    VARTYPE wanted = V_VT(value);
    if (wanted == VT_EMPTY)
        return VariantCopy(value, const_cast<VARIANT*>(stored));
    return VariantChangeType(value, const_cast<VARIANT*>(stored), 0, wanted);
}

HRESULT RecordingPropertyBag::Write(LPCOLESTR name, VARIANT* value)
{
    m_writes.push_back(name);
    Put(name, *value);
    return S_OK;
}

void RecordingPropertyBag::Put(const std::wstring& name, const VARIANT& value)
{
    auto stored = std::make_shared<OleVariant>();
    VariantCopy(stored->Put(), const_cast<VARIANT*>(&value));
    for (Entry& entry : m_entries) {
        if (entry.name == name) {
            entry.value = stored;
            return;
        }
    }
    m_entries.push_back({ name, stored });
}

const VARIANT* RecordingPropertyBag::Find(const std::wstring& name) const
{
    for (const Entry& entry : m_entries)
        if (entry.name == name)
            return &entry.value->Get();
    return nullptr;
}

} // namespace tolva::win32::test
