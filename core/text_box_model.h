#pragma once
#include "core/text_box.h"

namespace tolva {

// A text box without a window: the state and the rules of TextBox, and the editing a user does
// with keys (after the owner's key handlers ran). A platform without windows uses it as it is; a
// platform with a real box keeps it for the times the box has no window.
class TextBoxModel : public TextBox {
public:
    void SetListener(TextBoxListener* listener) override { m_listener = listener; }

    float Left() const override { return m_left; }
    float Top() const override { return m_top; }
    float Width() const override { return m_width; }
    float Height() const override { return m_height; }
    void Move(float left, float top, float width, float height) override; // a negative size is 0

    String Text() const override { return m_text; }
    void SetText(StringView text) override;
    int32_t SelStart() const override;
    void SetSelStart(int32_t start) override;
    int32_t SelLength() const override;
    void SetSelLength(int32_t length) override;
    String SelText() const override;
    void SetSelText(StringView text) override;

    bool Locked() const override { return m_locked; }
    void SetLocked(bool locked) override { m_locked = locked; }
    int32_t MaxLength() const override { return m_maxLength; }
    void SetMaxLength(int32_t length) override;

    bool Enabled() const override { return m_enabled; }
    void SetEnabled(bool enabled) override;
    OleColor BackColor() const override { return m_backColor; }
    void SetBackColor(OleColor color) override;
    OleColor ForeColor() const override { return m_foreColor; }
    void SetForeColor(OleColor color) override;
    Font GetFont() const override { return m_font; }
    void SetFont(const Font& font) override;

    bool HasFocus() const override { return false; }
    void SetFocus() override { }

    // What the box does with a key the owner let through: caret moves (Left, Right, Home, End,
    // with Shift extending the selection), Delete, Shift+Delete (cut), Shift+Insert (paste),
    // Ctrl+Insert (copy); characters are typed over the selection, Backspace, Ctrl+C, Ctrl+V,
    // Ctrl+X and Ctrl+Z (undo) edit. clipboard is the platform's clipboard text.
    void ApplyKeyDown(int16_t keyCode, int16_t shift, String& clipboard);
    void ApplyChar(char16_t character, String& clipboard);

protected:
    TextBoxListener* Listener() const { return m_listener; }
    // After anything that changes the look: the text, the selection, colours, font, enabled.
    virtual void LookChanged() { }
    // Takes the state a real box reports, without notifying anyone.
    void Restore(String text, int32_t selStart, int32_t selLength);

private:
    // Replaces the selection with text as the user does: refused while Locked, cut to the room
    // MaxLength leaves, undoable; a run of typed characters is undone as one.
    void ReplaceByUser(StringView text, bool typing);
    void Replace(StringView text);
    void ChangeText(String text, int32_t caret);
    void MoveCaret(int32_t caret, bool extend);
    void DeleteSelectionOrNeighbour(bool forward);
    void Undo();
    int32_t Room() const;

    TextBoxListener* m_listener = nullptr;
    float m_left = 0;
    float m_top = 0;
    float m_width = 0;
    float m_height = 0;
    String m_text;
    int32_t m_anchor = 0; // the selection runs from the anchor to the caret
    int32_t m_caret = 0;
    bool m_locked = false;
    int32_t m_maxLength = 0;
    bool m_enabled = true;
    OleColor m_backColor = SystemColor::Window;
    OleColor m_foreColor = SystemColor::WindowText;
    Font m_font;

    // One level of undo, as the platform's box keeps it: the text before the last edit (a run
    // of typed characters counts as one); undoing again redoes.
    struct Snapshot {
        String text;
        int32_t anchor = 0;
        int32_t caret = 0;
    };
    Snapshot m_undo;
    bool m_canUndo = false;
    bool m_typing = false;
};

} // namespace tolva
