#pragma once
#include "platform/win32/windows_api.h"
#include <objbase.h>
#include <utility>

namespace tolva::win32 {

// An owning interface pointer: one reference, released on destruction.
template <class T> class ComPtr {
public:
    ComPtr() = default;
    ComPtr(T* p)
        : m_p(p) // takes a new reference
    {
        if (m_p)
            m_p->AddRef();
    }
    ComPtr(const ComPtr& other)
        : ComPtr(other.m_p)
    { }
    ComPtr(ComPtr&& other) noexcept
        : m_p(std::exchange(other.m_p, nullptr))
    { }
    ~ComPtr() { Reset(); }

    ComPtr& operator=(ComPtr other) noexcept
    {
        std::swap(m_p, other.m_p);
        return *this;
    }

    // Adopts a pointer that already carries a reference.
    static ComPtr Adopt(T* p)
    {
        ComPtr result;
        result.m_p = p;
        return result;
    }

    void Reset()
    {
        if (T* p = std::exchange(m_p, nullptr))
            p->Release();
    }

    // For out-parameters: releases the current pointer and hands out the slot.
    T** Put()
    {
        Reset();
        return &m_p;
    }
    void** PutVoid() { return reinterpret_cast<void**>(Put()); }

    // Gives the reference to the caller.
    T* Detach() { return std::exchange(m_p, nullptr); }

    T* Get() const { return m_p; }
    T* operator->() const { return m_p; }
    explicit operator bool() const { return m_p != nullptr; }

    // QueryInterface for another interface; empty on failure.
    template <class U> ComPtr<U> As(REFIID iid) const
    {
        ComPtr<U> result;
        if (m_p)
            m_p->QueryInterface(iid, result.PutVoid());
        return result;
    }

private:
    T* m_p = nullptr;
};

} // namespace tolva::win32
