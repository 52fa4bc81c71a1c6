// The COM object as a whole: its interfaces, identity, class information, safety options and
// the module's object count.
#include "platform/win32/com/module.h"
#include "tests/win32/support/command_object.h"
#include <gtest/gtest.h>
#include <objsafe.h>
#include <olectl.h>

namespace tolva::win32::test {
namespace {

// Not in MinGW's libuuid.
const IID DispatchEx = { 0xa6ef9860, 0xc720, 0x11d0, { 0x93, 0x37, 0x00, 0xa0, 0xc9, 0x0d, 0xca, 0xa9 } };

TEST(CommandObjectInterfaces, AnswersTheInterfacesOfAWindowlessControl)
{
    CommandObject command;
    for (const IID* iid : { &IID_IDispatch, TolvaCommandClass.dispatchIid, &IID_IProvideClassInfo,
             &IID_IProvideClassInfo2, &IID_IConnectionPointContainer, &IID_IPersist, &IID_IPersistStreamInit,
             &IID_IPersistPropertyBag, &IID_ISupportErrorInfo, &IID_IObjectSafety }) {
        ComPtr<IUnknown> found;
        EXPECT_EQ(command.Unknown()->QueryInterface(*iid, found.PutVoid()), S_OK);
        // Every interface leads back to the same identity.
        ComPtr<IUnknown> identity;
        found->QueryInterface(IID_IUnknown, identity.PutVoid());
        EXPECT_EQ(identity.Get(), command.Unknown());
    }
}

TEST(CommandObjectInterfaces, RefusesDispatchExAndObjectWithSite)
{
    // IDispatchEx would make script engines add expando members; IObjectWithSite makes Wine's
    // script engines refuse CreateObject under cscript.
    CommandObject command;
    ComPtr<IUnknown> found;
    EXPECT_EQ(command.Unknown()->QueryInterface(DispatchEx, found.PutVoid()), E_NOINTERFACE);
    EXPECT_EQ(command.Unknown()->QueryInterface(IID_IObjectWithSite, found.PutVoid()), E_NOINTERFACE);
    EXPECT_EQ(command.Unknown()->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST(CommandObjectInterfaces, ClassInfoNamesTheCoclassAndTheEventInterface)
{
    CommandObject command;
    auto info = command.As<IProvideClassInfo2>(IID_IProvideClassInfo2);
    GUID events = {};
    ASSERT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_EQ(events, *TolvaCommandClass.eventIid);
    EXPECT_EQ(info->GetGUID(42, &events), E_INVALIDARG);
    ComPtr<ITypeInfo> coclass;
    ASSERT_EQ(info->GetClassInfo(coclass.Put()), S_OK);
    TYPEATTR* attributes = nullptr;
    coclass->GetTypeAttr(&attributes);
    EXPECT_EQ(attributes->guid, *TolvaCommandClass.clsid);
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
    coclass->ReleaseTypeAttr(attributes);
}

TEST(CommandObjectInterfaces, IsSafeForUntrustedCallersAndData)
{
    CommandObject command;
    auto safety = command.As<IObjectSafety>(IID_IObjectSafety);
    const DWORD both = INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA;
    DWORD supported = 0, enabled = 0;
    ASSERT_EQ(safety->GetInterfaceSafetyOptions(IID_IDispatch, &supported, &enabled), S_OK);
    EXPECT_EQ(supported, both);
    EXPECT_EQ(enabled, 0u);
    EXPECT_EQ(safety->SetInterfaceSafetyOptions(IID_IPersistPropertyBag, both, both), S_OK);
    safety->GetInterfaceSafetyOptions(IID_IPersistStreamInit, &supported, &enabled);
    EXPECT_EQ(enabled, both);
    EXPECT_EQ(safety->SetInterfaceSafetyOptions(IID_IDispatch, INTERFACE_USES_DISPEX, INTERFACE_USES_DISPEX), E_FAIL);
    EXPECT_EQ(safety->GetInterfaceSafetyOptions(IID_IOleObject, &supported, &enabled), E_NOINTERFACE);
}

TEST(CommandObjectInterfaces, TheModuleCountsLiveObjects)
{
    const long before = Module::ObjectCount();
    {
        CommandObject command;
        EXPECT_GT(Module::ObjectCount(), before);
        ComPtr<IUnknown> extra(command.Unknown());
        command.Release();
        EXPECT_GT(Module::ObjectCount(), before);
    }
    EXPECT_EQ(Module::ObjectCount(), before);
}

} // namespace
} // namespace tolva::win32::test
