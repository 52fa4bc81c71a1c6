#pragma once
#include "platform/win32/windows_api.h"
#include <utility>

namespace tolva::win32 {

// Owns one GDI object (pen, brush, font, bitmap) and deletes it. The object must no longer be
// selected into a device context when this goes; a Selection made after it guarantees that.
template <typename Handle> class GdiObject {
public:
    GdiObject() = default;
    explicit GdiObject(Handle handle)
        : m_handle(handle)
    { }
    ~GdiObject()
    {
        if (m_handle)
            DeleteObject(m_handle);
    }
    GdiObject(GdiObject&& other) noexcept
        : m_handle(std::exchange(other.m_handle, nullptr))
    { }
    GdiObject& operator=(GdiObject&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;

    Handle Get() const { return m_handle; }
    explicit operator bool() const { return m_handle != nullptr; }

private:
    Handle m_handle = nullptr;
};

} // namespace tolva::win32
