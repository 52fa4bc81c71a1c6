#pragma once
#include "platform/win32/com/ole_variant.h"
#include "tests/win32/support/fake_object.h"
#include <memory>
#include <ocidl.h>
#include <string>
#include <vector>

namespace tolva::win32::test {

// A container's property bag that remembers every read and write in order.
class RecordingPropertyBag final : public FakeObject<IPropertyBag> {
public:
    struct Entry {
        std::wstring name;
        std::shared_ptr<OleVariant> value;
    };

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override;

    void Put(const std::wstring& name, const VARIANT& value); // as a saved form would hold it
    const VARIANT* Find(const std::wstring& name) const;
    const std::vector<Entry>& Entries() const { return m_entries; }
    const std::vector<std::wstring>& Reads() const { return m_reads; }
    const std::vector<std::wstring>& Writes() const { return m_writes; }

protected:
    void* Find(REFIID iid) override;

private:
    std::vector<Entry> m_entries;
    std::vector<std::wstring> m_reads;
    std::vector<std::wstring> m_writes;
};

} // namespace tolva::win32::test
