#pragma once
#include "core/text_box_model.h"
#include "platform/win32/gdi/gdi_object.h"
#include "platform/win32/windows_api.h"
#include <memory>

namespace tolva::win32 {

class WindowSurface;

// The text box of a control as the system's single-line EDIT window, a child of the control's
// window while that has one; without a window the model keeps the state, and a new window
// starts from it.
//
// The EDIT is subclassed so that the owner hears every key before the box acts on it: a
// handler that sets KeyCode or KeyAscii to 0 swallows the key, one that changes it passes the
// new key on. The owner's window reflects the box's notifications back to it (OCM_COMMAND for
// EN_CHANGE, OCM_CTLCOLOREDIT and OCM_CTLCOLORSTATIC for the colours).
class EditTextBox final : public TextBoxModel {
public:
    explicit EditTextBox(WindowSurface& owner);
    ~EditTextBox() override;
    EditTextBox(const EditTextBox&) = delete;
    EditTextBox& operator=(const EditTextBox&) = delete;

    // The owner's window came (parent) or is going; the owner itself is going.
    void CreateWindowIn(HWND parent);
    void OwnerGone() { m_owner = nullptr; }
    HWND Window() const { return m_window; }

    void Move(float left, float top, float width, float height) override;
    void SetText(StringView text) override;
    int32_t SelStart() const override;
    void SetSelStart(int32_t start) override;
    int32_t SelLength() const override;
    void SetSelLength(int32_t length) override;
    String SelText() const override;
    void SetSelText(StringView text) override;
    void SetLocked(bool locked) override;
    void SetMaxLength(int32_t length) override;
    void SetEnabled(bool enabled) override;
    void SetBackColor(OleColor color) override;
    void SetFont(const Font& font) override;
    bool HasFocus() const override;
    void SetFocus() override;

private:
    static LRESULT CALLBACK SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT CallEdit(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnKey(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnMouse(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnColor(HDC dc);
    void LookChanged() override;
    // The user changed the text: the model takes it and the owner hears Change.
    void TakeTypedText();
    void PullSelection();
    void Forget();

    WindowSurface* m_owner;
    HWND m_window = nullptr;
    WNDPROC m_editProc = nullptr;
    String m_shown; // the text the window holds, as far as the model knows
    GdiObject<HBRUSH> m_background;
    GdiObject<HFONT> m_font;
    // Expires with the box, so that a message handler can tell that an event destroyed it.
    std::shared_ptr<int> m_lifetime = std::make_shared<int>(0);
};

} // namespace tolva::win32
