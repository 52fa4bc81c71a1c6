// Self-registration of TolvaKit.dll, machine-wide (regsvr32) and per user (DllInstall "user").
// The run registered the DLL before the tests; every test leaves it registered.
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/gdi/gdi_object.h"
#include "tests/win32/dll/tolva_kit_dll.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <ole2.h>
#include <oleauto.h>
#include <optional>
#include <set>
#include <sstream>
#include <vector>

namespace tolva::win32::test {
namespace {

const std::wstring ClassKey = L"CLSID\\" + GuidText(TolvaCommandClsid);
const std::wstring LibraryKey = L"TypeLib\\" + GuidText(TolvaKitLibraryId);
#ifdef _WIN64
const wchar_t* const Platform = L"win64";
#else
const wchar_t* const Platform = L"win32";
#endif

bool SamePath(const std::wstring& a, const std::wstring& b)
{
    return _wcsicmp(a.c_str(), b.c_str()) == 0;
}

// The pixels of a bitmap resource of the module, as 32-bit colours, top row first; empty when it
// is not a 16 x 15 bitmap.
std::vector<DWORD> ToolboxPixels(HMODULE module, int resource)
{
    GdiObject<HBITMAP> bitmap(
        static_cast<HBITMAP>(LoadImageW(module, MAKEINTRESOURCEW(resource), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    BITMAP size {};
    if (!bitmap || !GetObjectW(bitmap.Get(), sizeof size, &size) || size.bmWidth != 16 || size.bmHeight != 15)
        return {};
    BITMAPINFO format {};
    format.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    format.bmiHeader.biWidth = 16;
    format.bmiHeader.biHeight = -15; // top row first
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    std::vector<DWORD> pixels(16 * 15);
    HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap.Get(), 0, 15, pixels.data(), &format, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    return pixels;
}

// The status bits a comClass element of the module's assembly manifest gives its class, or
// nullopt when the manifest has no element for it or names a bit the list here lacks.
std::optional<DWORD> ManifestStatus(HMODULE module, const std::wstring& progId)
{
    HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24)); // RT_MANIFEST
    HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    if (!loaded)
        return std::nullopt;
    const std::string manifest(static_cast<const char*>(LockResource(loaded)), SizeofResource(module, found));
    const size_t progIdAt = manifest.find("progid=\"" + std::string(progId.begin(), progId.end()) + "\"");
    const std::string attribute = "miscStatusContent=\"";
    const size_t start = progIdAt == std::string::npos ? progIdAt : manifest.find(attribute, progIdAt);
    if (start == std::string::npos)
        return std::nullopt;
    const size_t valueStart = start + attribute.size();
    static const std::pair<const char*, DWORD> bits[] = { { "recomposeonresize", OLEMISC_RECOMPOSEONRESIZE },
        { "cantlinkinside", OLEMISC_CANTLINKINSIDE }, { "insideout", OLEMISC_INSIDEOUT },
        { "activatewhenvisible", OLEMISC_ACTIVATEWHENVISIBLE }, { "setclientsitefirst", OLEMISC_SETCLIENTSITEFIRST },
        { "actslikebutton", OLEMISC_ACTSLIKEBUTTON }, { "nouiactivate", OLEMISC_NOUIACTIVATE } };
    std::istringstream words(manifest.substr(valueStart, manifest.find('"', valueStart) - valueStart));
    DWORD status = 0;
    for (std::string word; std::getline(words, word, ',');) {
        const auto bit = std::find_if(std::begin(bits), std::end(bits), [&](const auto& b) { return word == b.first; });
        if (bit == std::end(bits))
            return std::nullopt;
        status |= bit->second;
    }
    return status;
}

class Registration : public testing::Test {
protected:
    void TearDown() override { ASSERT_EQ(dll.RegisterServer(), S_OK); }
    TolvaKitDll dll;
};

TEST_F(Registration, RegistersTheControlClassForInProcessUse)
{
    // The keys every published class has are checked class by class in
    // label_scroll_creation_test.cpp; here, the status and the library's file.
    ASSERT_EQ(dll.RegisterServer(), S_OK);
    // Every control's status, and a button that acts like one (OLEMISC_ACTSLIKEBUTTON).
    EXPECT_EQ(RegistryText(HKEY_CLASSES_ROOT, ClassKey + L"\\MiscStatus\\1"), L"135569");
    EXPECT_TRUE(SamePath(RegistryText(HKEY_CLASSES_ROOT, LibraryKey + L"\\1.0\\0\\" + Platform), TolvaKitDll::Path()));
}

// A container that reads the status from the registry before creating a control must learn
// what the control itself answers.
TEST_F(Registration, EveryClassRegistersTheMiscStatusItsObjectsAnswer)
{
    ComPtr<ITypeLib> library;
    ASSERT_EQ(LoadRegTypeLib(TolvaKitLibraryId, 1, 0, LOCALE_NEUTRAL, library.Put()), S_OK);
    int classes = 0;
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        TYPEKIND kind;
        if (FAILED(library->GetTypeInfoType(i, &kind)) || kind != TKIND_COCLASS)
            continue;
        ComPtr<ITypeInfo> info;
        ASSERT_EQ(library->GetTypeInfo(i, info.Put()), S_OK);
        TYPEATTR* attributes = nullptr;
        ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
        const CLSID clsid = attributes->guid;
        info->ReleaseTypeAttr(attributes);

        ComPtr<IOleObject> object;
        ASSERT_EQ(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject, object.PutVoid()), S_OK);
        DWORD status = 0;
        ASSERT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
        EXPECT_EQ(
            RegistryText(HKEY_CLASSES_ROOT, L"CLSID\\" + GuidText(clsid) + L"\\MiscStatus\\1"), std::to_wstring(status))
            << GuidText(clsid);
        ++classes;
    }
    EXPECT_GE(classes, 3);
}

// Designers read ToolboxBitmap32 ("<dll>, <resource id>") and load the bitmap from the DLL.
TEST_F(Registration, EveryControlHasAToolboxBitmapOfItsOwn)
{
    ASSERT_EQ(dll.RegisterServer(), S_OK);
    const HMODULE module = GetModuleHandleW(TolvaKitDll::Path().c_str());
    ASSERT_NE(module, nullptr);
    std::set<std::vector<DWORD>> pictures;
    for (const ControlClass* c : ControlClasses()) {
        const std::wstring value
            = RegistryText(HKEY_CLASSES_ROOT, L"CLSID\\" + GuidText(*c->clsid) + L"\\ToolboxBitmap32");
        const size_t comma = value.rfind(L", ");
        ASSERT_NE(comma, std::wstring::npos) << c->name << ": " << value;
        EXPECT_TRUE(SamePath(value.substr(0, comma), TolvaKitDll::Path())) << value;
        const std::vector<DWORD> pixels = ToolboxPixels(module, std::stoi(value.substr(comma + 2)));
        ASSERT_FALSE(pixels.empty()) << c->name << ": no 16 x 15 bitmap " << value;
        EXPECT_TRUE(pictures.insert(pixels).second) << c->name << " shows another control's picture";
    }
}

// A container reads a class's status from the assembly manifest when the DLL is not registered:
// the same bits as the class's record.
TEST_F(Registration, TheAssemblyManifestGivesEveryClassTheStatusItsObjectsAnswer)
{
    const HMODULE module = GetModuleHandleW(TolvaKitDll::Path().c_str());
    ASSERT_NE(module, nullptr);
    for (const ControlClass* c : ControlClasses())
        EXPECT_EQ(ManifestStatus(module, c->ProgId()), c->behaviour.miscStatus) << c->ProgId();
}

TEST_F(Registration, UnregisteringRemovesClassProgIdsAndTypeLibrary)
{
    ASSERT_EQ(dll.UnregisterServer(), S_OK);
    EXPECT_FALSE(RegistryKeyExists(HKEY_CLASSES_ROOT, ClassKey));
    EXPECT_FALSE(RegistryKeyExists(HKEY_CLASSES_ROOT, L"TolvaKit.TolvaCommand"));
    EXPECT_FALSE(RegistryKeyExists(HKEY_CLASSES_ROOT, L"TolvaKit.TolvaCommand.1"));
    EXPECT_FALSE(RegistryKeyExists(HKEY_CLASSES_ROOT, LibraryKey));
    EXPECT_FALSE(RegistryKeyExists(HKEY_CLASSES_ROOT, L"Interface\\" + GuidText(TolvaCommandDispatchIid)));
    ComPtr<IUnknown> object;
    EXPECT_EQ(CoCreateInstance(TolvaCommandClsid, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, object.PutVoid()),
        REGDB_E_CLASSNOTREG);
    CLSID clsid = {};
    EXPECT_NE(CLSIDFromProgID(L"TolvaKit.TolvaCommand", &clsid), S_OK);
    // Unregistering twice is harmless.
    EXPECT_EQ(dll.UnregisterServer(), S_OK);
}

TEST_F(Registration, PerUserInstallWritesUnderTheUsersClassesOnly)
{
    const std::wstring user = L"Software\\Classes\\";
    ASSERT_EQ(dll.UnregisterServer(), S_OK);
    ASSERT_EQ(dll.Install(true, L"user"), S_OK);
    EXPECT_TRUE(SamePath(RegistryText(HKEY_CURRENT_USER, user + ClassKey + L"\\InprocServer32"), TolvaKitDll::Path()));
    EXPECT_EQ(RegistryText(HKEY_CURRENT_USER, user + L"TolvaKit.TolvaCommand\\CLSID"), GuidText(TolvaCommandClsid));
    EXPECT_TRUE(RegistryKeyExists(HKEY_CURRENT_USER, user + LibraryKey + L"\\1.0\\0\\" + Platform));
    EXPECT_FALSE(RegistryKeyExists(HKEY_LOCAL_MACHINE, L"Software\\Classes\\" + ClassKey));

    ASSERT_EQ(dll.Install(false, L"USER"), S_OK);
    EXPECT_FALSE(RegistryKeyExists(HKEY_CURRENT_USER, user + ClassKey));
    EXPECT_FALSE(RegistryKeyExists(HKEY_CURRENT_USER, user + L"TolvaKit.TolvaCommand"));
    EXPECT_FALSE(RegistryKeyExists(HKEY_CURRENT_USER, user + LibraryKey));
}

TEST_F(Registration, InstallWithoutUserIsTheMachineRegistration)
{
    ASSERT_EQ(dll.UnregisterServer(), S_OK);
    ASSERT_EQ(dll.Install(true, nullptr), S_OK);
    EXPECT_TRUE(RegistryKeyExists(HKEY_CLASSES_ROOT, ClassKey));
}

} // namespace
} // namespace tolva::win32::test
