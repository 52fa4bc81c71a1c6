#include "platform/win32/com/live_font.h"
#include "platform/win32/com/com_object.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/com/font_conversion.h"
#include "platform/win32/com/module.h"

namespace tolva::win32 {

// The font's notification sink. It has its own reference count: the font holds it, and it must
// not keep the control alive; the LiveFont cuts it loose before letting go of the font.
class LiveFont::Sink final : public ComObject<IPropertyNotifySink> {
public:
    explicit Sink(LiveFont* owner)
        : m_owner(owner)
    { }
    void Detach() { m_owner = nullptr; }

    HRESULT STDMETHODCALLTYPE OnChanged(DISPID attribute) override
    {
        return Guarded(IID_IPropertyNotifySink, [this, attribute] {
            ComPtr<Sink> self(this); // the change may unadvise it, and the font let go of it
            if (m_owner)
                m_owner->OnChanged(attribute);
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }

protected:
    void* Find(REFIID iid) override
    {
        return iid == IID_IPropertyNotifySink ? static_cast<IPropertyNotifySink*>(this) : nullptr;
    }

private:
    ModuleReference m_module;
    LiveFont* m_owner;
};

LiveFont::LiveFont(IUnknown& owner, std::function<void(const Font&)> changed)
    : m_owner(owner)
    , m_changed(std::move(changed))
{ }

LiveFont::~LiveFont()
{
    Unwatch();
}

ComPtr<IFontDisp> LiveFont::ObjectFor(const Font& font)
{
    if (!m_font || m_shown != font) {
        Watch(CreateStdFont(font));
        m_shown = font;
    }
    return m_font.As<IFontDisp>(IID_IFontDisp);
}

Font LiveFont::Attach(IFont* font)
{
    Watch(ComPtr<IFont>(font));
    m_shown = ReadFont(font);
    return m_shown;
}

void LiveFont::Watch(ComPtr<IFont> font)
{
    if (font.Get() == m_font.Get())
        return;
    Unwatch();
    m_font = std::move(font);
    auto container = m_font.As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    if (!container || FAILED(container->FindConnectionPoint(IID_IPropertyNotifySink, m_point.Put())))
        return; // a font that cannot notify is still a font; its later changes go unseen
    m_sink = ComPtr<Sink>::Adopt(new Sink(this));
    if (FAILED(m_point->Advise(m_sink.Get(), &m_cookie))) {
        m_sink->Detach();
        m_sink.Reset();
        m_point.Reset();
    }
}

void LiveFont::Unwatch()
{
    if (m_sink) {
        m_sink->Detach();
        m_point->Unadvise(m_cookie);
    }
    m_sink.Reset();
    m_point.Reset();
    m_cookie = 0;
    m_font.Reset();
}

namespace {

// font with the attribute that the font object's dispatch id names taken from given; an id this
// does not know (DISPID_UNKNOWN: several changed) takes them all.
Font WithAttribute(Font font, const Font& given, DISPID attribute)
{
    switch (attribute) {
    case DISPID_FONT_NAME:
        font.name = given.name;
        break;
    case DISPID_FONT_SIZE:
        font.size = given.size;
        break;
    case DISPID_FONT_BOLD:
    case DISPID_FONT_WEIGHT:
        font.weight = given.weight;
        break;
    case DISPID_FONT_ITALIC:
        font.italic = given.italic;
        break;
    case DISPID_FONT_UNDER:
        font.underline = given.underline;
        break;
    case DISPID_FONT_STRIKE:
        font.strikethrough = given.strikethrough;
        break;
    case DISPID_FONT_CHARSET:
        font.charset = given.charset;
        break;
    default:
        return given;
    }
    return font;
}

} // namespace

void LiveFont::OnChanged(DISPID attribute)
{
    if (!m_font)
        return;
    // A client may release the control from a notification the change raises: it goes only
    // once this returns (and detaches the sink on its way).
    ComPtr<IUnknown> keepAlive(&m_owner);
    m_shown = WithAttribute(m_shown, ReadFont(m_font.Get()), attribute);
    m_changed(m_shown);
}

} // namespace tolva::win32
