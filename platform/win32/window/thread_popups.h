#pragma once
#include "core/input_popups.h"
#include "platform/win32/com/com_ptr.h"

namespace tolva::win32 {

// A hold on the pop-up windows of the calling thread, shared by every control created on it. The
// thread's set is made when the first control asks for it and goes, windows and all, when the
// last hold goes; a window message or timer tick of a pop-up holds it too, so the set never goes
// while its own code runs. The module stays loaded while the set exists.
class ThreadPopups {
public:
    InputPopups& Get(); // takes the hold on first use

private:
    ComPtr<IUnknown> m_hold;
    InputPopups* m_popups = nullptr;
};

} // namespace tolva::win32
