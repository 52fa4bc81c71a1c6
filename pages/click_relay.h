#pragma once
#include "controls/command/tolva_command_events.h"
#include <functional>

namespace tolva {

// The Click of an embedded button or label, handed to a page's handler.
class ClickRelay final : public TolvaCommandEvents {
public:
    explicit ClickRelay(std::function<void()> onClick)
        : m_onClick(std::move(onClick))
    { }
    void Click() override { m_onClick(); }

private:
    std::function<void()> m_onClick;
};

} // namespace tolva
