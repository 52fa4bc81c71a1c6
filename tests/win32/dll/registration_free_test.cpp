// TolvaKit.dll without registration: a client that activates the DLL's own assembly manifest
// creates every control by its ProgIDs and every property page by its class id. The run does this
// before it registers the DLL (the suite is labelled "unregistered").
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/pages/page_classes.h"
#include "tests/win32/dll/tolva_kit_dll.h"
#include <gtest/gtest.h>
#include <ocidl.h>
#include <ole2.h>

namespace tolva::win32::test {
namespace {

// The assembly manifest of a DLL (its RT_MANIFEST 1) as the thread's active context while the
// object lives.
class ActiveManifest {
public:
    explicit ActiveManifest(const std::wstring& dll)
    {
        ACTCTXW context {};
        context.cbSize = sizeof context;
        context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
        context.lpSource = dll.c_str();
        context.lpResourceName = MAKEINTRESOURCEW(1);
        m_context = CreateActCtxW(&context);
        if (m_context != INVALID_HANDLE_VALUE && !ActivateActCtx(m_context, &m_cookie))
            m_cookie = 0;
    }
    ~ActiveManifest()
    {
        if (m_cookie)
            DeactivateActCtx(0, m_cookie);
        if (m_context != INVALID_HANDLE_VALUE)
            ReleaseActCtx(m_context);
    }
    ActiveManifest(const ActiveManifest&) = delete;
    ActiveManifest& operator=(const ActiveManifest&) = delete;

    bool Active() const { return m_cookie != 0; }

private:
    HANDLE m_context = INVALID_HANDLE_VALUE;
    ULONG_PTR m_cookie = 0;
};

// The class id an object created from a class id says it has; GUID_NULL when none is created.
CLSID CreatedClass(REFCLSID clsid)
{
    ComPtr<IPersist> object;
    CLSID created = GUID_NULL;
    if (SUCCEEDED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IPersist, object.PutVoid())))
        object->GetClassID(&created);
    return created;
}

TEST(RegistrationFree, TheDllsManifestCreatesEveryControlAndEveryPropertyPage)
{
    CLSID clsid {};
    ASSERT_NE(CLSIDFromProgID(ControlClasses().front()->ProgId().c_str(), &clsid), S_OK)
        << "TolvaKit.dll is registered: this suite runs before regsvr32";

    ActiveManifest manifest(TolvaKitDll::Path());
    ASSERT_TRUE(manifest.Active()) << "no assembly manifest in TolvaKit.dll: error " << GetLastError();
    for (const ControlClass* c : ControlClasses()) {
        EXPECT_EQ(CreatedClass(*c->clsid), *c->clsid) << c->ProgId();
        // Wine answers a ProgID of the context with an alias of the class id, which creates the
        // class in the same context.
        for (const std::wstring& progId : { c->ProgId(), c->VersionedProgId() }) {
            ASSERT_EQ(CLSIDFromProgID(progId.c_str(), &clsid), S_OK) << progId;
            EXPECT_EQ(CreatedClass(clsid), *c->clsid) << progId;
        }
    }
    for (const PageClass* page : PageClasses()) {
        ComPtr<IPropertyPage> created;
        EXPECT_EQ(
            CoCreateInstance(page->clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage, created.PutVoid()), S_OK)
            << page->name;
    }
}

} // namespace
} // namespace tolva::win32::test
