#include "platform/headless/headless_text_box.h"
#include "core/twips_canvas.h"
#include <algorithm>

namespace tolva::headless {

namespace {

constexpr int16_t LeftButton = 1;
constexpr int32_t Margin = 1; // pixels between the window's edge and the text
constexpr OleColor GrayText = 0x80000011;

} // namespace

HeadlessTextBox::HeadlessTextBox(HeadlessSurface& owner)
    : m_window(owner.Tree(), &owner)
{
    m_window.SetListener(this);
}

HeadlessTextBox::~HeadlessTextBox()
{
    m_window.SetListener(nullptr);
}

void HeadlessTextBox::Type(StringView text)
{
    for (char16_t c : text)
        m_window.KeyPress(int16_t(c));
}

void HeadlessTextBox::Move(float left, float top, float width, float height)
{
    TextBoxModel::Move(left, top, width, height);
    m_window.Move(Left(), Top(), Width(), Height());
    LookChanged();
}

void HeadlessTextBox::SetEnabled(bool enabled)
{
    m_window.SetEnabled(enabled);
    TextBoxModel::SetEnabled(enabled);
}

void HeadlessTextBox::LookChanged()
{
    OnPaint();
}

// Only the characters that can show are drawn: none is narrower than a pixel.
void HeadlessTextBox::OnPaint()
{
    const int32_t width = int32_t(Width()) / SurfaceProperties::TwipsPerPixel;
    const int32_t height = int32_t(Height()) / SurfaceProperties::TwipsPerPixel;
    if (width <= 0 || height <= 0)
        return;
    std::unique_ptr<Canvas> canvas = m_window.CreateCanvas(width, height);
    const CanvasFont font = ToCanvasFont(GetFont());
    const String text = Text();
    const StringView shown = StringView(text).substr(0, size_t(width));
    canvas->FillRect(0, 0, width, height, TranslateColor(*canvas, BackColor()));
    const OleColor textColor = Enabled() ? ForeColor() : GrayText;
    canvas->DrawText(Margin, Margin, shown, font, TranslateColor(*canvas, textColor));
    if (HasFocus() && SelLength() > 0 && size_t(SelStart()) < shown.size()) {
        const StringView before = shown.substr(0, size_t(SelStart()));
        const StringView selected = shown.substr(before.size(), size_t(SelLength()));
        const int32_t x = Margin + canvas->MeasureText(before, font).width;
        const TextExtent extent = canvas->MeasureText(selected, font);
        canvas->FillRect(x, Margin, x + extent.width, Margin + extent.height,
            TranslateColor(*canvas, SystemColor::Highlight));
        canvas->DrawText(x, Margin, selected, font, TranslateColor(*canvas, SystemColor::HighlightText));
    }
    m_window.Present(*canvas, 0, 0, width, height);
}

void HeadlessTextBox::OnClick()
{
    if (TextBoxListener* listener = Listener())
        listener->OnClick();
}

void HeadlessTextBox::OnDblClick()
{
    if (TextBoxListener* listener = Listener())
        listener->OnDblClick();
}

// A press takes the focus first, as the platform's box does.
void HeadlessTextBox::OnMouseDown(int16_t button, int16_t shift, float x, float y)
{
    if (button == LeftButton)
        m_window.SetFocus();
    if (TextBoxListener* listener = Listener())
        listener->OnMouseDown(button, shift, x, y);
}

void HeadlessTextBox::OnMouseMove(int16_t button, int16_t shift, float x, float y)
{
    if (TextBoxListener* listener = Listener())
        listener->OnMouseMove(button, shift, x, y);
}

void HeadlessTextBox::OnMouseUp(int16_t button, int16_t shift, float x, float y)
{
    if (TextBoxListener* listener = Listener())
        listener->OnMouseUp(button, shift, x, y);
}

void HeadlessTextBox::OnKeyDown(int16_t& keyCode, int16_t& shift)
{
    if (TextBoxListener* listener = Listener())
        listener->OnKeyDown(keyCode, shift);
    if (keyCode != 0)
        ApplyKeyDown(keyCode, shift, m_window.Tree().Clipboard());
}

void HeadlessTextBox::OnKeyPress(int16_t& keyAscii)
{
    if (TextBoxListener* listener = Listener())
        listener->OnKeyPress(keyAscii);
    if (keyAscii != 0)
        ApplyChar(char16_t(keyAscii), m_window.Tree().Clipboard());
}

void HeadlessTextBox::OnKeyUp(int16_t& keyCode, int16_t& shift)
{
    if (TextBoxListener* listener = Listener())
        listener->OnKeyUp(keyCode, shift);
}

void HeadlessTextBox::OnGotFocus()
{
    LookChanged();
    if (TextBoxListener* listener = Listener())
        listener->OnGotFocus();
}

void HeadlessTextBox::OnLostFocus()
{
    LookChanged();
}

} // namespace tolva::headless
