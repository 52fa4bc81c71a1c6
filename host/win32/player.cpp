#include "host/win32/player.h"
#include "host/form/form_syntax_error.h"
#include "host/form/png_encoder.h"
#include "host/win32/host_form.h"
#include "host/win32/property_frame.h"
#include "host/win32/screen_pixels.h"
#include "host/win32/text_file.h"
#include "platform/win32/com/bstr.h"
#include <array>
#include <utility>

namespace tolva::host {

namespace {

constexpr UINT TickMilliseconds = 20;
// Time for the input of a step to be handled before the next one.
constexpr DWORD StepPause = 80;
// How long a step waits for the pointer to arrive where the last move sent it.
constexpr DWORD SettleLimit = 2000;

Player* g_running = nullptr; // the one player the timer drives

struct NamedKey {
    StringView name;
    WORD key;
};

constexpr std::array<NamedKey, 23> NamedKeys { {
    { u"Enter", VK_RETURN },
    { u"Space", VK_SPACE },
    { u"Escape", VK_ESCAPE },
    { u"Tab", VK_TAB },
    { u"Up", VK_UP },
    { u"Down", VK_DOWN },
    { u"Left", VK_LEFT },
    { u"Right", VK_RIGHT },
    { u"Home", VK_HOME },
    { u"End", VK_END },
    { u"PageUp", VK_PRIOR },
    { u"PageDown", VK_NEXT },
    { u"Back", VK_BACK },
    { u"Delete", VK_DELETE },
    { u"Shift", VK_SHIFT },
    { u"Control", VK_CONTROL },
    { u"Alt", VK_MENU },
    { u"F1", VK_F1 },
    { u"F4", VK_F4 },
    { u"Period", VK_OEM_PERIOD },
    { u"Slash", VK_OEM_2 },
    { u"Add", VK_ADD }, // the keypad's +
    { u"Equals", VK_OEM_PLUS }, // = without Shift
} };

// The virtual key of a key name: the names above, or one letter or digit; 0 for none.
WORD VirtualKey(StringView name)
{
    for (const NamedKey& named : NamedKeys)
        if (SameIdentifier(named.name, name))
            return named.key;
    if (name.size() == 1) {
        const char16_t c = name[0] >= u'a' && name[0] <= u'z' ? char16_t(name[0] - 32) : name[0];
        if ((c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9'))
            return WORD(c);
    }
    return 0;
}

void SendKey(WORD key, bool up)
{
    INPUT input {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    SendInput(1, &input, sizeof input);
}

// A character as typed, whatever the keyboard layout.
void SendCharacter(char16_t c)
{
    INPUT input[2] {};
    for (INPUT& part : input) {
        part.type = INPUT_KEYBOARD;
        part.ki.wScan = c;
        part.ki.dwFlags = KEYEVENTF_UNICODE;
    }
    input[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    SendInput(2, input, sizeof(INPUT));
}

// The target name of the open property frame.
constexpr StringView FrameTarget = u"frame";

void SendMouse(DWORD flags)
{
    INPUT input {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void MovePointer(POINT at)
{
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    INPUT input {};
    input.type = INPUT_MOUSE;
    input.mi.dx = LONG((int64_t(at.x) * 65536 + width / 2) / width);
    input.mi.dy = LONG((int64_t(at.y) * 65536 + height / 2) / height);
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    SendInput(1, &input, sizeof input);
}

// What a picture of the form takes in besides the form: the open menus, the property frame, and
// the windows the form owns (the drop-downs of its controls).
struct ShotArea {
    HWND form;
    RECT rect;
};

BOOL CALLBACK AddMenuRect(HWND window, LPARAM parameter)
{
    auto& area = *reinterpret_cast<ShotArea*>(parameter);
    wchar_t className[64] = {};
    GetClassNameW(window, className, 64);
    const std::wstring_view name(className);
    const bool taken
        = name == L"#32768" || name == PropertyFrame::WindowClass || GetWindow(window, GW_OWNER) == area.form;
    if (IsWindowVisible(window) && taken) {
        RECT part;
        GetWindowRect(window, &part);
        UnionRect(&area.rect, &area.rect, &part);
    }
    return TRUE;
}

} // namespace

Player::Player(HostForm& form, std::vector<PlayStep> steps, String shotsFolder)
    : m_form(form)
    , m_shotsFolder(std::move(shotsFolder))
{
    // A click is played as a move, a press and a release a pause apart: under X the pointer
    // settles only after its move, and a button pressed at once may land where it was before.
    for (const PlayStep& step : steps) {
        if (step.kind != PlayStep::Kind::Click) {
            m_steps.push_back(step);
            continue;
        }
        PlayStep part = step;
        for (PlayStep::Kind kind : { PlayStep::Kind::Move, PlayStep::Kind::Press, PlayStep::Kind::Release }) {
            part.kind = kind;
            m_steps.push_back(part);
        }
    }
    for (const PlayStep& step : m_steps) {
        const bool pointer = step.kind == PlayStep::Kind::Move || step.kind == PlayStep::Kind::Click;
        if (pointer && !SameIdentifier(step.target, m_form.Name()) && !SameIdentifier(step.target, FrameTarget)
            && !m_form.FindControl(step.target))
            throw FormSyntaxError(step.line, "the form has no control " + ToUtf8(step.target));
        const bool key = step.kind == PlayStep::Kind::Key || step.kind == PlayStep::Kind::KeyDown
            || step.kind == PlayStep::Kind::KeyUp || step.kind == PlayStep::Kind::Alt;
        if (key && !VirtualKey(step.target))
            throw FormSyntaxError(step.line, "unknown key " + ToUtf8(step.target));
    }
}

Player::~Player()
{
    Stop();
}

void Player::Start()
{
    Stop();
    g_running = this;
    m_resumeAt = GetTickCount() + StepPause;
    m_timer = SetTimer(nullptr, 0, TickMilliseconds, &Player::OnTimer);
}

void Player::Stop()
{
    if (m_timer)
        KillTimer(nullptr, std::exchange(m_timer, 0));
    if (g_running == this)
        g_running = nullptr;
}

void CALLBACK Player::OnTimer(HWND, UINT, UINT_PTR id, DWORD)
{
    if (g_running && g_running->m_timer == id)
        g_running->Tick();
}

void Player::Tick()
{
    if (int32_t(GetTickCount() - m_resumeAt) < 0)
        return;
    if (m_next >= m_steps.size()) {
        Stop();
        if (m_form.IsOpen())
            PostMessageW(m_form.Window(), WM_CLOSE, 0, 0);
        return;
    }
    // Under X the pointer follows a move only once the server echoes it, and an echo of an
    // earlier move can put it back: buttons and pictures wait until it is where it was sent.
    const PlayStep& step = m_steps[m_next];
    const bool needsPointer = step.kind == PlayStep::Kind::Press || step.kind == PlayStep::Kind::Release
        || step.kind == PlayStep::Kind::Shot;
    if (needsPointer && !PointerSettled())
        return;
    ++m_next;
    m_settleStart = 0;
    m_resumeAt = GetTickCount() + (step.kind == PlayStep::Kind::Wait ? DWORD(step.milliseconds) : StepPause);
    Execute(step);
}

bool Player::PointerSettled()
{
    if (!m_pointer)
        return true;
    const DWORD now = GetTickCount();
    if (!m_settleStart)
        m_settleStart = now;
    POINT at {};
    GetCursorPos(&at);
    if ((at.x == m_pointer->x && at.y == m_pointer->y) || now - m_settleStart > SettleLimit)
        return true;
    MovePointer(*m_pointer);
    m_resumeAt = now + StepPause;
    return false;
}

POINT Player::ScreenPoint(const PlayStep& step) const
{
    POINT at { step.x, step.y };
    FormControl* control = m_form.FindControl(step.target);
    HWND window = control && control->Window() ? control->Window() : m_form.Window();
    if (SameIdentifier(step.target, FrameTarget))
        if (HWND frame = FindWindowW(PropertyFrame::WindowClass, nullptr))
            window = frame;
    ClientToScreen(window, &at);
    return at;
}

void Player::Execute(const PlayStep& step)
{
    switch (step.kind) {
    case PlayStep::Kind::Move:
        m_pointer = ScreenPoint(step);
        MovePointer(*m_pointer);
        break;
    case PlayStep::Kind::Press:
        SendMouse(step.rightButton ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN);
        break;
    case PlayStep::Kind::Release:
        SendMouse(step.rightButton ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP);
        break;
    case PlayStep::Kind::Click: // played as its parts
        break;
    case PlayStep::Kind::Key:
        SendKey(VirtualKey(step.target), false);
        SendKey(VirtualKey(step.target), true);
        break;
    case PlayStep::Kind::KeyDown:
    case PlayStep::Kind::KeyUp:
        SendKey(VirtualKey(step.target), step.kind == PlayStep::Kind::KeyUp);
        break;
    case PlayStep::Kind::Alt:
        SendKey(VK_MENU, false);
        SendKey(VirtualKey(step.target), false);
        SendKey(VirtualKey(step.target), true);
        SendKey(VK_MENU, true);
        break;
    case PlayStep::Kind::Type:
        for (char16_t c : step.target)
            SendCharacter(c);
        break;
    case PlayStep::Kind::Wait:
        break;
    case PlayStep::Kind::Shot:
        TakeShot(step.target);
        break;
    case PlayStep::Kind::Close:
        if (m_form.IsOpen())
            PostMessageW(m_form.Window(), WM_CLOSE, 0, 0);
        break;
    }
}

void Player::TakeShot(StringView name) const
{
    if (!m_form.IsOpen())
        return;
    ShotArea shot { m_form.Window(), {} };
    GetWindowRect(m_form.Window(), &shot.rect);
    EnumThreadWindows(GetCurrentThreadId(), &AddMenuRect, reinterpret_cast<LPARAM>(&shot));
    RECT area = shot.rect;
    RECT screen { 0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) };
    IntersectRect(&area, &area, &screen);
    const std::vector<uint32_t> pixels = ReadPixels(nullptr, area);
    if (pixels.empty())
        return;
    String path = m_shotsFolder.empty() ? String() : m_shotsFolder + u"\\";
    path += name;
    path += u".png";
    WriteTextFile(path, EncodePng(area.right - area.left, area.bottom - area.top, pixels));
}

} // namespace tolva::host
