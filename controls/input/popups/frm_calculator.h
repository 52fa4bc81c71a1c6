#pragma once
#include "controls/input/popups/calculator_keys.h"
#include "controls/input/popups/popup_form.h"
#include "core/timer.h"
#include <array>
#include <deque>
#include <memory>

namespace tolva {

// The calculator pop-up: a keypad that turns clicks and typed characters into the owner's
// one-character calculator messages. It holds no number; the owner's text is the number. Each
// key shows pressed for one tick of tmrTimer (140 ms) and is sent at that moment; keys that
// come faster wait in two queues, the key images to swap (each twice: pressed, then released)
// and the keys to send, so they play back in order and none is lost.
class frmCalculator final : public PopupForm<CalculatorPopup> {
public:
    frmCalculator(std::unique_ptr<Surface> window, ControlSite& site);
    ~frmCalculator() override;

    void Setup() override;

    // A key pressed with the mouse or typed (CalculatorKey order).
    void PressKey(int key);

    // What the keypad shows, for the platform and tests.
    bool KeyShowsPressed(int key) const { return m_pressed.at(size_t(key)); }
    bool Animating() const { return m_tmrTimer->Enabled(); }

    // A group of push buttons, one a key, named after the owner.
    AccessibleDescription Describe() const override;
    int32_t ChildCount() const override { return CalculatorKey::Count; }
    std::unique_ptr<AccessibleElement> Child(int32_t index) override;

    static constexpr int32_t AnimationInterval = 140;

private:
    class KeyItem;
    void Forget() override;
    void OnPaint() override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnKeyPress(int16_t& keyAscii) override;

    void OnTick();
    void SwapKeyImage(int key);
    void Send(int key);
    void PaintKey(int key);
    CanvasFont KeyFont() const;

    std::array<bool, CalculatorKey::Count> m_pressed {}; // which look each key image shows
    bool m_pressedLook = false; // the look of the key swapped last
    std::deque<int> m_imageQueue;
    std::deque<int> m_keyQueue;
    std::unique_ptr<Timer> m_tmrTimer;
};

} // namespace tolva
