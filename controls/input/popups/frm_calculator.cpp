#include "controls/input/popups/frm_calculator.h"
#include "core/twips_canvas.h"

namespace tolva {

namespace {

constexpr int16_t KeyBackspace = 8;
constexpr int16_t KeyClear = 12; // Ctrl+L, not the letter C
constexpr int16_t KeyEnter = 13;
constexpr int16_t KeyEscape = 27;
constexpr ColorRef Black = 0x000000;
constexpr ColorRef FrameColor = 0x808080;

// The keyboard's keys: digits and the operators by their characters; no key changes the sign.
int KeyOfCharacter(int16_t character)
{
    if (character >= u'0' && character <= u'9')
        return character - u'0';
    switch (character) {
    case KeyClear:
        return CalculatorKey::C;
    case KeyBackspace:
        return CalculatorKey::Bksp;
    case u'.':
        return CalculatorKey::Dec;
    case u'/':
        return CalculatorKey::Div;
    case u'*':
        return CalculatorKey::Mul;
    case u'+':
        return CalculatorKey::Add;
    case u'-':
        return CalculatorKey::Sub;
    case u'=':
    case KeyEnter:
        return CalculatorKey::Equ;
    default:
        return -1;
    }
}

} // namespace

frmCalculator::frmCalculator(std::unique_ptr<Surface> window, ControlSite& site)
    : PopupForm(std::move(window), site)
    , m_tmrTimer(Window().CreateTimer())
{
    Window().Move(0, 0, float(CalculatorWidth * 15), float(CalculatorHeight * 15));
    m_tmrTimer->SetInterval(AnimationInterval);
    m_tmrTimer->SetTickHandler([this] { OnTick(); });
}

frmCalculator::~frmCalculator()
{
    m_tmrTimer->SetEnabled(false);
}

void frmCalculator::Forget()
{
    m_tmrTimer->SetEnabled(false);
    m_imageQueue.clear();
    m_keyQueue.clear();
    m_pressed.fill(false);
    m_pressedLook = false;
}

void frmCalculator::Setup()
{
    Window().Refresh();
}

// The first key reacts at once; the ones after it wait for the ticks.
void frmCalculator::PressKey(int key)
{
    m_imageQueue.push_back(key);
    m_imageQueue.push_back(key);
    m_keyQueue.push_back(key);
    if (!m_tmrTimer->Enabled()) {
        m_tmrTimer->SetEnabled(true);
        OnTick();
    }
}

// Each tick swaps one key image; a key is sent as it shows pressed. The owner may unload the
// calculator from inside the send ("="), which empties the queues.
void frmCalculator::OnTick()
{
    if (!m_imageQueue.empty()) {
        const int key = m_imageQueue.front();
        m_imageQueue.pop_front();
        SwapKeyImage(key);
        if (m_pressedLook && !m_keyQueue.empty()) {
            const int sent = m_keyQueue.front();
            m_keyQueue.pop_front();
            Send(sent);
        }
    }
    if (m_imageQueue.empty())
        m_tmrTimer->SetEnabled(false);
}

void frmCalculator::SwapKeyImage(int key)
{
    m_pressed[size_t(key)] = !m_pressed[size_t(key)];
    m_pressedLook = m_pressed[size_t(key)];
    PaintKey(key);
    Window().Announce(AccessibleEvent::StateChange, key);
}

// A digit goes as "#" with its number, every other key as its message alone.
void frmCalculator::Send(int key)
{
    const StringView message = CalculatorKeys()[size_t(key)].message;
    m_tmrTimer->SetTag(String(message));
    if (key < 10)
        Callback(u"#", Currency::FromInt(key));
    else
        Callback(message);
}

void frmCalculator::OnMouseDown(int16_t, int16_t, float x, float y)
{
    if (const auto key = CalculatorKeyAt(int32_t(x / 15), int32_t(y / 15)))
        PressKey(*key);
}

void frmCalculator::OnKeyPress(int16_t& keyAscii)
{
    if (keyAscii == KeyEscape) {
        Callback(u"CANCEL");
        UnloadSelf();
        return;
    }
    if (const int key = KeyOfCharacter(keyAscii); key >= 0)
        PressKey(key);
}

CanvasFont frmCalculator::KeyFont() const
{
    Font font;
    font.size = 9.75;
    font.SetBold(true);
    return ToCanvasFont(font);
}

void frmCalculator::OnPaint()
{
    Surface& window = Window();
    const std::unique_ptr<Canvas> canvas = window.CreateCanvas(CalculatorWidth, CalculatorHeight);
    canvas->FillRect(0, 0, CalculatorWidth, CalculatorHeight, Black);
    canvas->Frame({ 0, 0, CalculatorWidth, CalculatorHeight }, FrameColor);
    const CanvasFont font = KeyFont();
    for (int key = 0; key < CalculatorKey::Count; ++key)
        DrawCalculatorKey(*canvas, key, m_pressed[size_t(key)], font);
    window.Present(*canvas, 0, 0, CalculatorWidth, CalculatorHeight);
}

// Only the swapped key is drawn again: a canvas of its size, drawn in the keypad's coordinates.
void frmCalculator::PaintKey(int key)
{
    if (!Visible())
        return;
    const Rect place = CalculatorKeys()[size_t(key)].place;
    Surface& window = Window();
    const std::unique_ptr<Canvas> canvas = window.CreateCanvas(place.Width(), place.Height());
    canvas->SetOrigin({ -place.left, -place.top });
    DrawCalculatorKey(*canvas, key, m_pressed[size_t(key)], KeyFont());
    window.Present(*canvas, place.left, place.top, place.Width(), place.Height());
}

} // namespace tolva
