#pragma once
#include "core/font.h"
#include "core/ole_color.h"
#include "core/string.h"
#include <cstdint>

namespace tolva {

// What a single-line text box reports to the control that owns it. Key arguments are
// references and arrive before the box acts on the key: a handler that sets KeyCode or KeyAscii
// to 0 keeps the box from acting on it, one that changes them makes it act on the new key.
// Mouse coordinates are twips in the box's own scale.
class TextBoxListener {
public:
    virtual void OnChange() { }
    virtual void OnClick() { }
    virtual void OnDblClick() { }
    virtual void OnKeyDown(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
    virtual void OnKeyPress(int16_t& /*keyAscii*/) { }
    virtual void OnKeyUp(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
    virtual void OnMouseDown(int16_t /*button*/, int16_t /*shift*/, float /*x*/, float /*y*/) { }
    virtual void OnMouseMove(int16_t /*button*/, int16_t /*shift*/, float /*x*/, float /*y*/) { }
    virtual void OnMouseUp(int16_t /*button*/, int16_t /*shift*/, float /*x*/, float /*y*/) { }
    virtual void OnGotFocus() { }

protected:
    ~TextBoxListener() = default;
};

// A standard single-line text box that a control places on its surface, as the platform
// provides it: typing, caret and selection, clipboard and undo, read-only (Locked), a limit on
// the typed length (MaxLength, 0 for none), colours, font and a Tag string for the owner.
//
// The rules every platform keeps:
// - Change is raised whenever the text becomes a different text, typed or assigned.
// - Assigning Text puts the caret at 0 with nothing selected and empties the undo buffer.
//   MaxLength limits what the user types or pastes and an assigned SelText, never an assigned
//   Text; Locked stops the user, not code.
// - SelStart and SelLength are clamped to the text; a negative one is "Invalid property
//   value" (380), as is a negative MaxLength. Assigning SelStart empties the selection;
//   assigning SelText replaces the selection and leaves the caret after the new text.
class TextBox {
public:
    virtual ~TextBox() = default;

    virtual void SetListener(TextBoxListener* listener) = 0;

    // Geometry in the owner's scale (twips).
    virtual float Left() const = 0;
    virtual float Top() const = 0;
    virtual float Width() const = 0;
    virtual float Height() const = 0;
    virtual void Move(float left, float top, float width, float height) = 0;

    virtual String Text() const = 0;
    virtual void SetText(StringView text) = 0;
    virtual int32_t SelStart() const = 0;
    virtual void SetSelStart(int32_t start) = 0;
    virtual int32_t SelLength() const = 0;
    virtual void SetSelLength(int32_t length) = 0;
    virtual String SelText() const = 0;
    virtual void SetSelText(StringView text) = 0;

    virtual bool Locked() const = 0;
    virtual void SetLocked(bool locked) = 0;
    virtual int32_t MaxLength() const = 0;
    virtual void SetMaxLength(int32_t length) = 0;

    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual OleColor BackColor() const = 0;
    virtual void SetBackColor(OleColor color) = 0;
    virtual OleColor ForeColor() const = 0;
    virtual void SetForeColor(OleColor color) = 0;
    virtual Font GetFont() const = 0;
    virtual void SetFont(const Font& font) = 0;

    virtual bool HasFocus() const = 0;
    virtual void SetFocus() = 0;

    // Scratch text of the owner; the box does nothing with it.
    const String& Tag() const { return m_tag; }
    void SetTag(StringView tag) { m_tag = tag; }

private:
    String m_tag;
};

} // namespace tolva
