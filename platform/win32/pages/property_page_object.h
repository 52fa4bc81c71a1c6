#pragma once
#include "platform/win32/com/com_object.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/module.h"
#include "platform/win32/com/ole_control_site.h"
#include "platform/win32/pages/page_buttons.h"
#include "platform/win32/pages/page_classes.h"
#include "platform/win32/window/window_surface.h"
#include <ocidl.h>
#include <optional>

namespace tolva::win32 {

// One of the library's property pages as the designer's property frame drives it
// (IPropertyPage2): the core page on a window surface of its own, whose window lives between
// Activate and Deactivate; the selected objects reached through IDispatch; the page's changed
// flag reported to the page site, which enables its Apply button.
class PropertyPageObject final : public ComObject<IPropertyPage2>, private PageStatusListener {
public:
    static ComPtr<IUnknown> Create(const PageClass& pageClass);

    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) override;
    HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT rect, BOOL modal) override;
    HRESULT STDMETHODCALLTYPE Deactivate() override;
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) override;
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG count, IUnknown** objects) override;
    HRESULT STDMETHODCALLTYPE Show(UINT command) override;
    HRESULT STDMETHODCALLTYPE Move(LPCRECT rect) override;
    HRESULT STDMETHODCALLTYPE IsPageDirty() override;
    HRESULT STDMETHODCALLTYPE Apply() override;
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR helpDirectory) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) override;
    HRESULT STDMETHODCALLTYPE EditProperty(DISPID id) override;

protected:
    void* Find(REFIID iid) override;

private:
    explicit PropertyPageObject(const PageClass& pageClass);
    ~PropertyPageObject() override;
    void OnStatusChange() override;

    ModuleReference m_module;
    const PageClass& m_class;
    WindowSurface m_surface;
    OleControlSite m_site;
    std::unique_ptr<PropertyPage> m_page;
    std::optional<PageButtons> m_buttons;
    ComPtr<IPropertyPageSite> m_pageSite;
};

} // namespace tolva::win32
