#pragma once
#include "platform/win32/com/com_object.h"
#include "platform/win32/com/module.h"
#include "platform/win32/windows_api.h"
#include <ocidl.h>
#include <utility>
#include <vector>

namespace tolva::win32 {

// Items of the standard enumerators hold references of their own.
inline void AddItemReference(CONNECTDATA& item)
{
    item.pUnk->AddRef();
}
inline void ReleaseItemReference(CONNECTDATA& item)
{
    item.pUnk->Release();
}
inline void AddItemReference(IConnectionPoint* item)
{
    item->AddRef();
}
inline void ReleaseItemReference(IConnectionPoint* item)
{
    item->Release();
}

// A standard enumerator (IEnumConnections, IEnumConnectionPoints) over a snapshot of items.
template <class Interface, class Item, const IID& Iid> class Enumerator final : public ComObject<Interface> {
public:
    explicit Enumerator(std::vector<Item> items)
        : m_items(std::move(items))
    {
        for (Item& item : m_items)
            AddItemReference(item);
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG count, Item* items, ULONG* fetched) override
    {
        if (!items || (count > 1 && !fetched))
            return E_POINTER;
        ULONG given = 0;
        for (; given < count && m_position < m_items.size(); ++given, ++m_position) {
            items[given] = m_items[m_position];
            AddItemReference(items[given]);
        }
        if (fetched)
            *fetched = given;
        return given == count ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override
    {
        size_t left = m_items.size() - m_position;
        m_position += count < left ? count : left;
        return count <= left ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override
    {
        m_position = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(Interface** out) override
    {
        if (!out)
            return E_POINTER;
        try {
            auto* copy = new Enumerator(m_items);
            copy->m_position = m_position;
            *out = copy;
            return S_OK;
        } catch (...) {
            *out = nullptr;
            return E_OUTOFMEMORY;
        }
    }

protected:
    void* Find(REFIID iid) override { return iid == Iid ? static_cast<Interface*>(this) : nullptr; }

private:
    ~Enumerator() override
    {
        for (Item& item : m_items)
            ReleaseItemReference(item);
    }

    ModuleReference m_module;
    std::vector<Item> m_items;
    size_t m_position = 0;
};

using ConnectionEnumerator = Enumerator<IEnumConnections, CONNECTDATA, IID_IEnumConnections>;
using ConnectionPointEnumerator = Enumerator<IEnumConnectionPoints, IConnectionPoint*, IID_IEnumConnectionPoints>;

} // namespace tolva::win32
