#pragma once
#include "core/control_site.h"

namespace tolva::headless {

// A menu control of a test form, known by its name.
class TestMenu final : public HostObject {
public:
    explicit TestMenu(String name)
        : m_name(std::move(name))
    { }
    const String& Name() const { return m_name; }

private:
    String m_name;
};

} // namespace tolva::headless
