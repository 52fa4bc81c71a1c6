#pragma once
#include "core/font.h"
#include "tests/win32/support/fake_object.h"
#include <olectl.h>

namespace tolva::win32::test {

// A font object of another class than the standard font: it reports whatever attributes it was
// made with, however odd (size 0, weight -1, charset 32767), and changes nothing.
class ReportingFont final : public FakeObject<IFont> {
public:
    explicit ReportingFont(Font reported)
        : m_font(std::move(reported))
    { }

    HRESULT STDMETHODCALLTYPE get_Name(BSTR* name) override;
    HRESULT STDMETHODCALLTYPE put_Name(BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Size(CY* size) override;
    HRESULT STDMETHODCALLTYPE put_Size(CY) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Bold(BOOL* bold) override { return Report(bold, m_font.Bold()); }
    HRESULT STDMETHODCALLTYPE put_Bold(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Italic(BOOL* italic) override { return Report(italic, m_font.italic); }
    HRESULT STDMETHODCALLTYPE put_Italic(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Underline(BOOL* underline) override { return Report(underline, m_font.underline); }
    HRESULT STDMETHODCALLTYPE put_Underline(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Strikethrough(BOOL* strike) override { return Report(strike, m_font.strikethrough); }
    HRESULT STDMETHODCALLTYPE put_Strikethrough(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Weight(SHORT* weight) override { return Report(weight, m_font.weight); }
    HRESULT STDMETHODCALLTYPE put_Weight(SHORT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Charset(SHORT* charset) override { return Report(charset, m_font.charset); }
    HRESULT STDMETHODCALLTYPE put_Charset(SHORT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_hFont(HFONT* font) override { return Report(font, HFONT(nullptr), E_NOTIMPL); }
    HRESULT STDMETHODCALLTYPE Clone(IFont** font) override { return Report(font, (IFont*)nullptr, E_NOTIMPL); }
    HRESULT STDMETHODCALLTYPE IsEqual(IFont*) override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE SetRatio(LONG, LONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryTextMetrics(TEXTMETRICOLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddRefHfont(HFONT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ReleaseHfont(HFONT) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetHdc(HDC) override { return E_NOTIMPL; }

protected:
    void* Find(REFIID iid) override { return iid == IID_IFont ? static_cast<IFont*>(this) : nullptr; }

private:
    template <class T, class V> static HRESULT Report(T* out, V value, HRESULT result = S_OK)
    {
        if (!out)
            return E_POINTER;
        *out = T(value);
        return result;
    }

    Font m_font;
};

} // namespace tolva::win32::test
