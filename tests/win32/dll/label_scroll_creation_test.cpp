// The published control classes from the registered DLL: their registry entries, and creation by
// class id and by either ProgID with their class information. The scroll bar's slider control
// stays private: it is neither registered nor creatable.
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_ptr.h"
#include "tests/win32/dll/tolva_kit_dll.h"
#include <gtest/gtest.h>
#include <ocidl.h>

namespace tolva::win32::test {
namespace {

struct Published {
    const wchar_t* name;
    CLSID clsid;
    IID dispatch;
    IID events;
};

const Published Command = { L"TolvaCommand", TolvaCommandClsid, TolvaCommandDispatchIid, TolvaCommandEventsIid };

const Published Label
    = { L"TolvaLabel", { 0x88B64AC9, 0x2A5A, 0x4E69, { 0xAD, 0x3E, 0x7B, 0xBA, 0x7E, 0xF3, 0x53, 0x59 } },
          { 0x01334FB0, 0xDD2A, 0x48B3, { 0x82, 0x0C, 0x29, 0x82, 0xDC, 0x1C, 0xF8, 0x69 } },
          { 0x6A158B5C, 0x7984, 0x4D84, { 0x90, 0xD9, 0xD0, 0x84, 0x90, 0x7F, 0x23, 0x90 } } };
const Published Scroll
    = { L"TolvaScroll", { 0x6FECD5E3, 0x6625, 0x4EC9, { 0xAD, 0x36, 0x70, 0x80, 0xFD, 0x6A, 0x23, 0x6B } },
          { 0x849EEB14, 0x84BA, 0x4093, { 0x8C, 0x6E, 0xAE, 0xE8, 0xEE, 0xDE, 0x58, 0x98 } },
          { 0xF18805C8, 0xD85C, 0x4F36, { 0x9A, 0x92, 0x7A, 0xDF, 0xB5, 0xCF, 0xC3, 0xF4 } } };

const Published Input
    = { L"TolvaInput", { 0xBFB36080, 0xB24C, 0x42F2, { 0x93, 0x8B, 0xB9, 0x71, 0x7E, 0x91, 0xA0, 0x6D } },
          { 0x7313333F, 0xB3E6, 0x4886, { 0x9E, 0x51, 0x2A, 0xF3, 0x14, 0xD8, 0xEF, 0x20 } },
          { 0x70FF4662, 0x1081, 0x44F4, { 0x8E, 0xBD, 0x7E, 0x0C, 0x5C, 0xC4, 0xC1, 0x5A } } };

class PublishedClass : public testing::TestWithParam<const Published*> { };

TEST_P(PublishedClass, IsRegisteredAsAnInProcessControlWithBothProgIds)
{
    const Published& p = *GetParam();
    const std::wstring progId = std::wstring(L"TolvaKit.") + p.name;
    const std::wstring classKey = L"CLSID\\" + GuidText(p.clsid);
    EXPECT_EQ(
        _wcsicmp(RegistryText(HKEY_CLASSES_ROOT, classKey + L"\\InprocServer32").c_str(), TolvaKitDll::Path().c_str()),
        0);
    EXPECT_EQ(RegistryText(HKEY_CLASSES_ROOT, classKey + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
    EXPECT_EQ(RegistryText(HKEY_CLASSES_ROOT, classKey + L"\\ProgID"), progId + L".1");
    EXPECT_EQ(RegistryText(HKEY_CLASSES_ROOT, classKey + L"\\VersionIndependentProgID"), progId);
    EXPECT_TRUE(RegistryKeyExists(HKEY_CLASSES_ROOT, classKey + L"\\Control"));
    EXPECT_EQ(RegistryText(HKEY_CLASSES_ROOT, classKey + L"\\TypeLib"), GuidText(TolvaKitLibraryId));
    EXPECT_EQ(RegistryText(HKEY_CLASSES_ROOT, progId + L"\\CurVer"), progId + L".1");
    for (const IID* iid : { &p.dispatch, &p.events }) {
        const std::wstring key = L"Interface\\" + GuidText(*iid);
        EXPECT_EQ(RegistryText(HKEY_CLASSES_ROOT, key + L"\\TypeLib"), GuidText(TolvaKitLibraryId));
        EXPECT_EQ(
            RegistryText(HKEY_CLASSES_ROOT, key + L"\\ProxyStubClsid32"), L"{00020420-0000-0000-C000-000000000046}");
    }
    EXPECT_EQ(RegistryText(HKEY_CLASSES_ROOT, L"Interface\\" + GuidText(p.events)), std::wstring(L"__") + p.name);

    for (const std::wstring& name : { progId, progId + L".1" }) {
        CLSID clsid = {};
        ASSERT_EQ(CLSIDFromProgID(name.c_str(), &clsid), S_OK) << ToUtf8(ViewOf(name.c_str()));
        EXPECT_EQ(clsid, p.clsid);
    }
}

TEST_P(PublishedClass, IsCreatedByClassIdAndProgIdWithItsClassInformation)
{
    const Published& p = *GetParam();
    ComPtr<IUnknown> byClass;
    ASSERT_EQ(CoCreateInstance(p.clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, byClass.PutVoid()), S_OK);
    CLSID clsid = {};
    ASSERT_EQ(CLSIDFromProgID((std::wstring(L"TolvaKit.") + p.name).c_str(), &clsid), S_OK);
    ComPtr<IDispatch> byProgId;
    ASSERT_EQ(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, byProgId.PutVoid()), S_OK);

    auto classInfo = byProgId.As<IProvideClassInfo2>(IID_IProvideClassInfo2);
    ASSERT_TRUE(classInfo);
    GUID events = {};
    ASSERT_EQ(classInfo->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_EQ(events, p.events);
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(byProgId->GetTypeInfo(0, 0, info.Put()), S_OK);
    TYPEATTR* attributes = nullptr;
    info->GetTypeAttr(&attributes);
    EXPECT_EQ(attributes->guid, p.dispatch);
    info->ReleaseTypeAttr(attributes);
}

INSTANTIATE_TEST_SUITE_P(Classes, PublishedClass, testing::Values(&Command, &Label, &Scroll, &Input),
    [](const testing::TestParamInfo<const Published*>& info) { return ToUtf8(ViewOf(info.param->name)); });

TEST(PrivateSlider, IsNeitherRegisteredNorCreatable)
{
    CLSID clsid = {};
    EXPECT_NE(CLSIDFromProgID(L"TolvaKit.ctlScrollBox", &clsid), S_OK);
    EXPECT_FALSE(RegistryKeyExists(HKEY_CLASSES_ROOT, L"TolvaKit.ctlScrollBox"));
}

} // namespace
} // namespace tolva::win32::test
