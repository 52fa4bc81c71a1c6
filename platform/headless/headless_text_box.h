#pragma once
#include "core/text_box_model.h"
#include "platform/headless/headless_surface.h"
#include <memory>

namespace tolva::headless {

// The text box of the headless platform: the model's rules on a child window of the owner's
// surface. Input goes to Window() as to any headless surface (KeyDown, KeyPress, mouse, focus);
// the owner's listener hears each key first, then the box acts on what the handlers left. The
// window image shows the text, and the selection while the box has the focus.
class HeadlessTextBox final : public TextBoxModel, private SurfaceListener {
public:
    explicit HeadlessTextBox(HeadlessSurface& owner);
    ~HeadlessTextBox() override;
    HeadlessTextBox(const HeadlessTextBox&) = delete;
    HeadlessTextBox& operator=(const HeadlessTextBox&) = delete;

    HeadlessSurface& Window() { return m_window; }
    // Each character as a key press, the way a user types it.
    void Type(StringView text);

    void Move(float left, float top, float width, float height) override;
    void SetEnabled(bool enabled) override;
    bool HasFocus() const override { return m_window.HasFocus(); }
    void SetFocus() override { m_window.SetFocus(); }

private:
    void LookChanged() override;

    void OnPaint() override;
    void OnClick() override;
    void OnDblClick() override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseMove(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;
    void OnKeyDown(int16_t& keyCode, int16_t& shift) override;
    void OnKeyPress(int16_t& keyAscii) override;
    void OnKeyUp(int16_t& keyCode, int16_t& shift) override;
    void OnGotFocus() override;
    void OnLostFocus() override;

    HeadlessSurface m_window;
};

} // namespace tolva::headless
