#include "platform/win32/com/registration.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/module.h"
#include "platform/win32/com/registry_key.h"
#include "platform/win32/com/type_library.h"
#include "platform/win32/pages/page_classes.h"
#include <olectl.h>
#include <optional>

namespace tolva::win32 {

namespace {

// The standard marshaller of dispinterfaces.
constexpr const wchar_t* DispatchProxy = L"{00020420-0000-0000-C000-000000000046}";

constexpr const wchar_t* TypeLibraryVersion = L"1.0";

#ifdef _WIN64
constexpr const wchar_t* Platform = L"win64";
#else
constexpr const wchar_t* Platform = L"win32";
#endif

std::wstring Text(REFGUID guid)
{
    wchar_t text[40] = {};
    StringFromGUID2(guid, text, 40);
    return text;
}

std::wstring NameOf(ITypeInfo* info)
{
    Bstr name;
    info->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr);
    return name.Get() ? std::wstring(name.Get()) : std::wstring();
}

// Opens the root all keys go under; the user root is created when it is missing.
class Root {
public:
    explicit Root(RegistrationScope scope)
        : m_user(scope == RegistrationScope::User
                ? std::optional<RegistryKey>(RegistryKey::Create(HKEY_CURRENT_USER, L"Software\\Classes"))
                : std::nullopt)
    { }
    HKEY Get() const { return m_user ? m_user->Get() : HKEY_CLASSES_ROOT; }

private:
    std::optional<RegistryKey> m_user;
};

void SetKey(HKEY root, const std::wstring& path, const std::wstring& value)
{
    RegistryKey::Create(root, path).SetString(nullptr, value);
}

void RegisterControlClass(HKEY root, const ControlClass& c, const std::wstring& libraryId, const std::wstring& path)
{
    const std::wstring clsidKey = L"CLSID\\" + Text(*c.clsid);
    SetKey(root, clsidKey, c.name);
    RegistryKey server = RegistryKey::Create(root, clsidKey + L"\\InprocServer32");
    server.SetString(nullptr, path);
    server.SetString(L"ThreadingModel", L"Apartment");
    SetKey(root, clsidKey + L"\\ProgID", c.VersionedProgId());
    SetKey(root, clsidKey + L"\\VersionIndependentProgID", c.ProgId());
    SetKey(root, clsidKey + L"\\Control", L"");
    SetKey(root, clsidKey + L"\\Programmable", L"");
    SetKey(root, clsidKey + L"\\MiscStatus", L"0");
    SetKey(root, clsidKey + L"\\MiscStatus\\1", std::to_wstring(c.behaviour.miscStatus));
    SetKey(root, clsidKey + L"\\TypeLib", libraryId);
    SetKey(root, clsidKey + L"\\Version", TypeLibraryVersion);
    if (const int bitmap = c.ToolboxBitmap())
        SetKey(root, clsidKey + L"\\ToolboxBitmap32", path + L", " + std::to_wstring(bitmap));

    for (const std::wstring& progId : { c.ProgId(), c.VersionedProgId() }) {
        SetKey(root, progId, c.name);
        SetKey(root, progId + L"\\CLSID", Text(*c.clsid));
    }
    SetKey(root, c.ProgId() + L"\\CurVer", c.VersionedProgId());
}

// A property page: its class id and server only, so no ProgID creates it.
void RegisterPageClass(HKEY root, const PageClass& page, const std::wstring& path)
{
    const std::wstring clsidKey = L"CLSID\\" + Text(page.clsid);
    SetKey(root, clsidKey, page.name);
    RegistryKey server = RegistryKey::Create(root, clsidKey + L"\\InprocServer32");
    server.SetString(nullptr, path);
    server.SetString(L"ThreadingModel", L"Apartment");
}

void RegisterInterface(HKEY root, const IID& iid, const std::wstring& libraryId)
{
    const std::wstring key = L"Interface\\" + Text(iid);
    SetKey(root, key, NameOf(TypeLibrary::InfoOf(iid).Get()));
    SetKey(root, key + L"\\ProxyStubClsid", DispatchProxy);
    SetKey(root, key + L"\\ProxyStubClsid32", DispatchProxy);
    RegistryKey library = RegistryKey::Create(root, key + L"\\TypeLib");
    library.SetString(nullptr, libraryId);
    library.SetString(L"Version", TypeLibraryVersion);
}

void RegisterTypeLibrary(HKEY root, const std::wstring& libraryId, const std::wstring& path)
{
    ComPtr<ITypeLib> library = TypeLibrary::Get();
    Bstr help;
    library->GetDocumentation(MEMBERID_NIL, nullptr, help.Put(), nullptr, nullptr);
    const std::wstring key = L"TypeLib\\" + libraryId + L"\\" + TypeLibraryVersion;
    SetKey(root, key, help.Get() ? help.Get() : L"");
    SetKey(root, key + L"\\0\\" + Platform, path);
    SetKey(root, key + L"\\FLAGS", L"0");
    SetKey(root, key + L"\\HELPDIR", path.substr(0, path.find_last_of(L'\\')));
}

std::wstring LibraryId()
{
    ComPtr<ITypeLib> library = TypeLibrary::Get();
    TLIBATTR* attributes = nullptr;
    ThrowIfFailed(library->GetLibAttr(&attributes));
    std::wstring id = Text(attributes->guid);
    library->ReleaseTLibAttr(attributes);
    return id;
}

} // namespace

void Registration::Register(RegistrationScope scope)
{
    Root root(scope);
    const std::wstring path = Module::Path();
    const std::wstring libraryId = LibraryId();
    RegisterTypeLibrary(root.Get(), libraryId, path);
    for (const ControlClass* c : ControlClasses()) {
        RegisterControlClass(root.Get(), *c, libraryId, path);
        RegisterInterface(root.Get(), *c->dispatchIid, libraryId);
        RegisterInterface(root.Get(), *c->eventIid, libraryId);
    }
    for (const PageClass* page : PageClasses())
        RegisterPageClass(root.Get(), *page, path);
}

void Registration::Unregister(RegistrationScope scope)
{
    Root root(scope);
    const std::wstring libraryId = LibraryId();
    for (const ControlClass* c : ControlClasses()) {
        DeleteRegistryTree(root.Get(), L"CLSID\\" + Text(*c->clsid));
        DeleteRegistryTree(root.Get(), c->ProgId());
        DeleteRegistryTree(root.Get(), c->VersionedProgId());
        DeleteRegistryTree(root.Get(), L"Interface\\" + Text(*c->dispatchIid));
        DeleteRegistryTree(root.Get(), L"Interface\\" + Text(*c->eventIid));
    }
    for (const PageClass* page : PageClasses())
        DeleteRegistryTree(root.Get(), L"CLSID\\" + Text(page->clsid));
    // The other architecture's DLL may still be registered for the same type library.
    const std::wstring version = L"TypeLib\\" + libraryId + L"\\" + TypeLibraryVersion;
    DeleteRegistryTree(root.Get(), version + L"\\0\\" + Platform);
    if (!HasRegistrySubkeys(root.Get(), version + L"\\0"))
        DeleteRegistryTree(root.Get(), L"TypeLib\\" + libraryId);
}

} // namespace tolva::win32
