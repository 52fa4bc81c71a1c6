#include "core/text_box_model.h"
#include "core/automation_error.h"
#include <algorithm>
#include <utility>

namespace tolva {

namespace {

constexpr int16_t ShiftMask = 1;
constexpr int16_t ControlMask = 2;

namespace Key {
constexpr int16_t End = 35;
constexpr int16_t Home = 36;
constexpr int16_t Left = 37;
constexpr int16_t Right = 39;
constexpr int16_t Insert = 45;
constexpr int16_t Delete = 46;
}

namespace Character {
constexpr char16_t Copy = 3; // Ctrl+C
constexpr char16_t Backspace = 8;
constexpr char16_t Paste = 22; // Ctrl+V
constexpr char16_t Cut = 24; // Ctrl+X
constexpr char16_t Undo = 26; // Ctrl+Z
}

void RefuseNegative(int32_t value)
{
    if (value < 0)
        throw AutomationError::RunTime(RunTimeError::InvalidPropertyValue);
}

// A single-line box takes a pasted text up to its first line break.
StringView FirstLine(StringView text)
{
    return text.substr(0, std::min(text.find(u'\r'), text.find(u'\n')));
}

} // namespace

void TextBoxModel::Move(float left, float top, float width, float height)
{
    m_left = left;
    m_top = top;
    m_width = width > 0 ? width : 0;
    m_height = height > 0 ? height : 0;
}

void TextBoxModel::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    LookChanged();
}

void TextBoxModel::SetBackColor(OleColor color)
{
    m_backColor = color;
    LookChanged();
}

void TextBoxModel::SetForeColor(OleColor color)
{
    m_foreColor = color;
    LookChanged();
}

void TextBoxModel::SetFont(const Font& font)
{
    m_font = font;
    LookChanged();
}

void TextBoxModel::Restore(String text, int32_t selStart, int32_t selLength)
{
    m_text = std::move(text);
    m_anchor = std::clamp(selStart, 0, int32_t(m_text.size()));
    m_caret = std::clamp(selStart + selLength, m_anchor, int32_t(m_text.size()));
}

void TextBoxModel::SetText(StringView text)
{
    m_canUndo = false;
    m_typing = false;
    ChangeText(String(text), 0);
}

int32_t TextBoxModel::SelStart() const
{
    return std::min(m_anchor, m_caret);
}

void TextBoxModel::SetSelStart(int32_t start)
{
    RefuseNegative(start);
    m_typing = false;
    m_anchor = m_caret = std::min(start, int32_t(m_text.size()));
    LookChanged();
}

int32_t TextBoxModel::SelLength() const
{
    return std::abs(m_caret - m_anchor);
}

void TextBoxModel::SetSelLength(int32_t length)
{
    RefuseNegative(length);
    m_typing = false;
    m_anchor = SelStart();
    m_caret = m_anchor + std::min(length, int32_t(m_text.size()) - m_anchor);
    LookChanged();
}

String TextBoxModel::SelText() const
{
    return m_text.substr(size_t(SelStart()), size_t(SelLength()));
}

void TextBoxModel::SetSelText(StringView text)
{
    m_typing = false;
    Replace(text.substr(0, size_t(Room())));
}

void TextBoxModel::SetMaxLength(int32_t length)
{
    RefuseNegative(length);
    m_maxLength = length;
}

// The characters that still fit beside the text outside the selection.
int32_t TextBoxModel::Room() const
{
    const int32_t kept = int32_t(m_text.size()) - SelLength();
    return m_maxLength == 0 ? INT32_MAX : std::max(0, m_maxLength - kept);
}

void TextBoxModel::Replace(StringView text)
{
    const size_t start = size_t(SelStart());
    String changed = m_text;
    changed.replace(start, size_t(SelLength()), text);
    ChangeText(std::move(changed), int32_t(start + text.size()));
}

void TextBoxModel::ChangeText(String text, int32_t caret)
{
    const bool different = text != m_text;
    m_text = std::move(text);
    m_anchor = m_caret = caret;
    LookChanged();
    if (different && m_listener)
        m_listener->OnChange();
}

void TextBoxModel::ReplaceByUser(StringView text, bool typing)
{
    if (m_locked)
        return;
    const StringView fitting = text.substr(0, size_t(Room()));
    if (fitting.empty() && SelLength() == 0)
        return;
    if (!(typing && m_typing)) {
        m_undo = { m_text, m_anchor, m_caret };
        m_canUndo = true;
    }
    m_typing = typing;
    Replace(fitting);
}

void TextBoxModel::MoveCaret(int32_t caret, bool extend)
{
    m_typing = false;
    m_caret = std::clamp(caret, 0, int32_t(m_text.size()));
    if (!extend)
        m_anchor = m_caret;
    LookChanged();
}

void TextBoxModel::DeleteSelectionOrNeighbour(bool forward)
{
    if (m_locked)
        return;
    if (SelLength() == 0) {
        const int32_t neighbour = forward ? m_caret + 1 : m_caret - 1;
        if (neighbour < 0 || neighbour > int32_t(m_text.size()))
            return;
        m_anchor = neighbour;
    }
    ReplaceByUser(u"", false);
}

void TextBoxModel::Undo()
{
    if (!m_canUndo)
        return;
    Snapshot current { m_text, m_anchor, m_caret };
    const Snapshot previous = std::exchange(m_undo, std::move(current));
    m_typing = false;
    ChangeText(previous.text, previous.caret);
    m_anchor = previous.anchor;
    LookChanged();
}

void TextBoxModel::ApplyKeyDown(int16_t keyCode, int16_t shift, String& clipboard)
{
    const bool extend = (shift & ShiftMask) != 0;
    switch (keyCode) {
    case Key::Left:
        MoveCaret(SelLength() && !extend ? SelStart() : m_caret - 1, extend);
        return;
    case Key::Right:
        MoveCaret(SelLength() && !extend ? SelStart() + SelLength() : m_caret + 1, extend);
        return;
    case Key::Home:
        MoveCaret(0, extend);
        return;
    case Key::End:
        MoveCaret(int32_t(m_text.size()), extend);
        return;
    case Key::Delete:
        if (extend)
            ApplyChar(Character::Cut, clipboard);
        else
            DeleteSelectionOrNeighbour(true);
        return;
    case Key::Insert:
        if (extend)
            ApplyChar(Character::Paste, clipboard);
        else if (shift & ControlMask)
            ApplyChar(Character::Copy, clipboard);
        return;
    default:
        return;
    }
}

void TextBoxModel::ApplyChar(char16_t character, String& clipboard)
{
    switch (character) {
    case Character::Backspace:
        DeleteSelectionOrNeighbour(false);
        return;
    case Character::Copy:
        if (SelLength())
            clipboard = SelText();
        return;
    case Character::Cut:
        if (SelLength() && !m_locked) {
            clipboard = SelText();
            ReplaceByUser(u"", false);
        }
        return;
    case Character::Paste:
        ReplaceByUser(FirstLine(clipboard), false);
        return;
    case Character::Undo:
        if (!m_locked)
            Undo();
        return;
    default:
        if (character >= u' ')
            ReplaceByUser(StringView(&character, 1), true);
        return;
    }
}

} // namespace tolva
