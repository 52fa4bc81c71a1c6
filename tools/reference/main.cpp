// tolva_reference <TolvaKit.dll> <reference.md>: writes the reference document of the DLL from
// the type library embedded in it and from what its controls write into a property bag.
// Exit code 0, 1 when the library cannot be read or the file written, 2 for bad usage.
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/com_ptr.h"
#include "tools/reference/markdown_reference.h"
#include "tools/reference/persisted_properties.h"
#include "tools/reference/type_library_reader.h"
#include <cstdio>
#include <fstream>
#include <ole2.h>
#include <shellapi.h>

using namespace tolva;

namespace {

int Write(const wchar_t* dllPath, const wchar_t* outputPath)
{
    win32::ComPtr<ITypeLib> library;
    if (FAILED(LoadTypeLibEx(dllPath, REGKIND_NONE, library.Put()))) {
        std::fwprintf(stderr, L"tolva_reference: no type library in %ls\n", dllPath);
        return 1;
    }
    reference::LibraryDescription description = reference::ReadTypeLibrary(library.Get());
    for (reference::ControlClassDescription& c : description.classes)
        c.persisted = reference::PersistedPropertiesOf(c, description.enumerations);

    std::ofstream out(outputPath, std::ios::binary);
    out << reference::MarkdownReference(description);
    if (!out.flush()) {
        std::fwprintf(stderr, L"tolva_reference: cannot write %ls\n", outputPath);
        return 1;
    }
    return 0;
}

} // namespace

int main()
{
    int count = 0;
    LPWSTR* arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    int status = 1;
    if (count != 3) {
        std::fputs("usage: tolva_reference <TolvaKit.dll> <reference.md>\n", stderr);
        status = 2;
    } else if (SUCCEEDED(OleInitialize(nullptr))) {
        try {
            status = Write(arguments[1], arguments[2]);
        } catch (const win32::ComError& error) {
            std::fprintf(stderr, "tolva_reference: reading the library failed (0x%08lX)\n", error.Result());
        } catch (const std::exception& error) {
            std::fprintf(stderr, "tolva_reference: %s\n", error.what());
        }
        OleUninitialize();
    }
    LocalFree(arguments);
    return status;
}
