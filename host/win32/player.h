#pragma once
#include "host/form/play_script.h"
#include "platform/win32/windows_api.h"
#include <optional>
#include <vector>

namespace tolva::host {

class HostForm;

// Plays a scripted interaction with a shown form as real input (SendInput), one step per timer
// tick so that it carries on inside the modal loops the input opens (a pop-up menu), and
// closes the form after the last step. Pictures go to the shots folder as <name>.png.
class Player {
public:
    // Throws FormSyntaxError for a step naming an unknown control or key.
    Player(HostForm& form, std::vector<PlayStep> steps, String shotsFolder);
    ~Player();
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    void Start();
    bool Finished() const { return m_next >= m_steps.size() && !m_timer; }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR id, DWORD);
    void Tick();
    void Execute(const PlayStep& step);
    void Stop();
    POINT ScreenPoint(const PlayStep& step) const;
    bool PointerSettled();
    void TakeShot(StringView name) const;

    HostForm& m_form;
    std::vector<PlayStep> m_steps;
    String m_shotsFolder;
    size_t m_next = 0;
    DWORD m_resumeAt = 0;
    UINT_PTR m_timer = 0;
    std::optional<POINT> m_pointer; // where the last move put the pointer
    DWORD m_settleStart = 0;
};

} // namespace tolva::host
