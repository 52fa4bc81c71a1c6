#include "platform/win32/pages/property_page_object.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/pages/dispatch_target.h"
#include <cwchar>

namespace tolva::win32 {

namespace {

constexpr int TwipsPerPixel = 15;

float Twips(LONG pixels)
{
    return float(pixels * TwipsPerPixel);
}

wchar_t* TaskMemoryCopy(const String& text)
{
    auto* copy = static_cast<wchar_t*>(CoTaskMemAlloc((text.size() + 1) * sizeof(wchar_t)));
    if (copy) {
        std::copy(text.begin(), text.end(), copy);
        copy[text.size()] = L'\0';
    }
    return copy;
}

} // namespace

ComPtr<IUnknown> PropertyPageObject::Create(const PageClass& pageClass)
{
    auto* object = new PropertyPageObject(pageClass);
    return ComPtr<IUnknown>::Adopt(static_cast<IPropertyPage2*>(object));
}

PropertyPageObject::PropertyPageObject(const PageClass& pageClass)
    : m_class(pageClass)
    , m_site(String(pageClass.name, pageClass.name + std::wcslen(pageClass.name)), m_surface, nullptr, [](StringView) { })
    , m_page(pageClass.create(m_surface, m_site))
{
    m_surface.SetCanGetFocus(false);
    m_page->SetStatusListener(this);
}

PropertyPageObject::~PropertyPageObject()
{
    m_buttons.reset();
    m_page.reset();
    m_surface.DestroyWindow();
}

void* PropertyPageObject::Find(REFIID iid)
{
    if (iid == IID_IPropertyPage || iid == IID_IPropertyPage2)
        return static_cast<IPropertyPage2*>(this);
    return nullptr;
}

void PropertyPageObject::OnStatusChange()
{
    if (m_pageSite)
        m_pageSite->OnStatusChange(PROPPAGESTATUS_DIRTY | PROPPAGESTATUS_VALIDATE);
}

HRESULT PropertyPageObject::SetPageSite(IPropertyPageSite* site)
{
    m_pageSite = ComPtr<IPropertyPageSite>(site);
    return S_OK;
}

HRESULT PropertyPageObject::Activate(HWND parent, LPCRECT rect, BOOL)
{
    if (!rect)
        return E_POINTER;
    return Guarded(IID_IPropertyPage, [&] {
        m_surface.CreateWindowIn(parent, *rect);
        m_buttons.emplace(*m_page, m_surface.Window());
        return m_surface.Window() ? S_OK : E_FAIL;
    });
}

HRESULT PropertyPageObject::Deactivate()
{
    m_buttons.reset();
    m_surface.DestroyWindow();
    return S_OK;
}

HRESULT PropertyPageObject::GetPageInfo(PROPPAGEINFO* info)
{
    if (!info)
        return E_POINTER;
    info->cb = sizeof(PROPPAGEINFO);
    info->pszTitle = TaskMemoryCopy(m_page->Caption());
    info->size = { LONG(m_page->Width()) / TwipsPerPixel, LONG(m_page->Height()) / TwipsPerPixel };
    info->pszDocString = nullptr;
    info->pszHelpFile = nullptr;
    info->dwHelpContext = 0;
    return info->pszTitle ? S_OK : E_OUTOFMEMORY;
}

HRESULT PropertyPageObject::SetObjects(ULONG count, IUnknown** objects)
{
    if (count && !objects)
        return E_POINTER;
    return Guarded(IID_IPropertyPage, [&] {
        std::vector<std::shared_ptr<PageTarget>> targets;
        for (ULONG i = 0; i < count; ++i) {
            ComPtr<IDispatch> object;
            if (!objects[i] || FAILED(objects[i]->QueryInterface(IID_IDispatch, object.PutVoid())))
                return E_NOINTERFACE;
            targets.push_back(std::make_shared<DispatchTarget>(object.Get()));
        }
        m_page->SetObjects(std::move(targets));
        return S_OK;
    });
}

HRESULT PropertyPageObject::Show(UINT command)
{
    if (m_surface.Window())
        ShowWindow(m_surface.Window(), int(command));
    return S_OK;
}

HRESULT PropertyPageObject::Move(LPCRECT rect)
{
    if (!rect)
        return E_POINTER;
    m_surface.Move(Twips(rect->left), Twips(rect->top), Twips(rect->right - rect->left), Twips(rect->bottom - rect->top));
    return S_OK;
}

HRESULT PropertyPageObject::IsPageDirty()
{
    return m_page->Changed() ? S_OK : S_FALSE;
}

HRESULT PropertyPageObject::Apply()
{
    return Guarded(IID_IPropertyPage, [&] {
        m_page->Apply();
        return S_OK;
    });
}

HRESULT PropertyPageObject::Help(LPCOLESTR)
{
    return E_NOTIMPL;
}

// The frame offers keys first; the page's fields take theirs from the dialog manager.
HRESULT PropertyPageObject::TranslateAccelerator(MSG* message)
{
    if (!message || !m_surface.Window())
        return S_FALSE;
    return IsDialogMessageW(m_surface.Window(), message) ? S_OK : S_FALSE;
}

HRESULT PropertyPageObject::EditProperty(DISPID)
{
    return E_NOTIMPL;
}

} // namespace tolva::win32
