#pragma once
#include "core/control_site.h"
#include "core/surface.h"
#include "pages/property_page.h"
#include "platform/win32/windows_api.h"
#include <memory>
#include <objbase.h>
#include <span>

namespace tolva::win32 {

struct ControlClass;

// One property page of the library: registered under its class id with its name, created through
// DllGetClassObject, never by a ProgID.
struct PageClass {
    const wchar_t* name;
    CLSID clsid;
    std::unique_ptr<PropertyPage> (*create)(Surface& surface, ControlSite& site);
};

std::span<const PageClass* const> PageClasses();
const PageClass* FindPageClass(REFCLSID clsid);
// The pages a control class lists to the designer, in order.
std::span<const PageClass* const> PagesOf(const ControlClass& controlClass);

} // namespace tolva::win32
