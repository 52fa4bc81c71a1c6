// Each control in a real container (Wine's ATL), repainted again and again, and created, loaded
// from a stream and destroyed again and again: GDI objects, USER objects, handles and private
// bytes stay flat. The counts here are small; TOLVA_SOAK_REPAINTS and TOLVA_SOAK_CYCLES set the
// long run whose printed figures docs/reliability.md records.
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_class.h"
#include "tests/gui/atl_hosted.h"
#include "tests/win32/support/every_control.h"
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <psapi.h>

namespace tolva::win32::test {
namespace {

size_t Setting(const char* name, size_t otherwise)
{
    const char* value = std::getenv(name);
    return value ? size_t(std::strtoull(value, nullptr, 10)) : otherwise;
}

int WindowCount()
{
    size_t count = 0;
    for (HWND window : ThreadWindows())
        count += 1 + ChildWindows(window).size();
    return int(count);
}

// Kernel handles open in the process: GetProcessHandleCount where the system answers it; Wine
// does not, so there the handle values are probed.
DWORD HandleCount()
{
    DWORD count = 0;
    if (GetProcessHandleCount(GetCurrentProcess(), &count) && count)
        return count;
    for (uintptr_t value = 4; value < 0x10000; value += 4) {
        DWORD flags = 0;
        if (GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags))
            ++count;
    }
    return count;
}

// The private bytes the process uses: PrivateUsage where the system reports it; Wine reports 0,
// so there the blocks in use in the process's heaps are added up.
SIZE_T PrivateBytes()
{
    PROCESS_MEMORY_COUNTERS_EX memory = {};
    memory.cb = sizeof memory;
    if (GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof memory)
        && memory.PrivateUsage)
        return memory.PrivateUsage;
    HANDLE heaps[64];
    const DWORD heapCount = GetProcessHeaps(64, heaps);
    SIZE_T used = 0;
    for (DWORD i = 0; i < heapCount && i < 64; ++i) {
        PROCESS_HEAP_ENTRY entry = {};
        HeapLock(heaps[i]);
        while (HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                used += entry.cbData;
        HeapUnlock(heaps[i]);
    }
    return used;
}

struct Resources {
    int gdiObjects;
    int userObjects; // GetGuiResources where the system has it, else this thread's windows
    DWORD handles;
    SIZE_T privateBytes;

    static Resources Now()
    {
        const DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
        return { GdiObjectCount(), user ? int(user) : WindowCount(), HandleCount(), PrivateBytes() };
    }
};

// Heap growth allowed over a run: what the allocator keeps for itself, not a leak per cycle.
constexpr SIZE_T PrivateBytesSlack = 512 * 1024;

void ExpectFlat(const char* what, const std::string& control, size_t count, const Resources& before,
    const Resources& after)
{
    std::printf("soak %s %s x%zu: GDI %d -> %d, USER %d -> %d, handles %lu -> %lu, private KiB %zu -> %zu\n",
        control.c_str(), what, count, before.gdiObjects, after.gdiObjects, before.userObjects, after.userObjects,
        static_cast<unsigned long>(before.handles), static_cast<unsigned long>(after.handles),
        size_t(before.privateBytes / 1024), size_t(after.privateBytes / 1024));
    EXPECT_LE(after.gdiObjects, before.gdiObjects);
    EXPECT_LE(after.userObjects, before.userObjects);
    EXPECT_LE(after.handles, before.handles);
    EXPECT_LE(after.privateBytes, before.privateBytes + PrivateBytesSlack);
}

class Soak : public AtlHosted, public testing::WithParamInterface<const ControlClass*> {
protected:
    const ControlClass& Class() const { return *GetParam(); }
    std::string Name() const { return ToUtf8(FromWide(Class().name)); }
    void Repaint() { RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN); }
};

TEST_P(Soak, RepaintsLeaveNothingBehind)
{
    Host(Class().ProgId().c_str(), *Class().eventIid, 10, 10, 120, 30);
    const size_t repaints = Setting("TOLVA_SOAK_REPAINTS", 1000);
    for (int i = 0; i < 50; ++i)
        Repaint();
    const Resources before = Resources::Now();
    for (size_t i = 0; i < repaints; ++i)
        Repaint();
    ExpectFlat("repaints", Name(), repaints, before, Resources::Now());
}

TEST_P(Soak, CreatingLoadingAndDestroyingLeavesNothingBehind)
{
    Host(Class().ProgId().c_str(), *Class().eventIid, 10, 10, 120, 30);
    ComPtr<IStream> saved;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, saved.Put()), S_OK);
    ASSERT_EQ(control.As<IPersistStreamInit>(IID_IPersistStreamInit)->Save(saved.Get(), FALSE), S_OK);
    TearDown();
    container = window = nullptr;
    control.Reset();
    dispatch.Reset();
    sink.Reset();

    auto cycle = [&] {
        HWND host = CreateWindowExW(0, L"AtlAxWin", Class().ProgId().c_str(), WS_CHILD | WS_VISIBLE, 10, 10, 120, 30,
            form.Get(), nullptr, GetModuleHandleW(nullptr), nullptr);
        ASSERT_TRUE(host);
        ComPtr<IUnknown> created;
        auto getControl = reinterpret_cast<HRESULT(WINAPI*)(HWND, IUnknown**)>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"atl.dll"), "AtlAxGetControl")));
        ASSERT_EQ(getControl(host, created.Put()), S_OK);
        const LARGE_INTEGER start = {};
        saved->Seek(start, STREAM_SEEK_SET, nullptr);
        ASSERT_EQ(created.As<IPersistStreamInit>(IID_IPersistStreamInit)->Load(saved.Get()), S_OK);
        created.Reset();
        DestroyWindow(host);
    };
    const size_t cycles = Setting("TOLVA_SOAK_CYCLES", 100);
    for (int i = 0; i < 20; ++i)
        cycle();
    PumpFor(10);
    const Resources before = Resources::Now();
    for (size_t i = 0; i < cycles && !HasFatalFailure(); ++i)
        cycle();
    PumpFor(10);
    ExpectFlat("create/load/destroy cycles", Name(), cycles, before, Resources::Now());
}

INSTANTIATE_TEST_SUITE_P(EveryControl, Soak, testing::ValuesIn(ControlClasses()), ClassName);

} // namespace
} // namespace tolva::win32::test
