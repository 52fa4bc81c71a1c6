// Where the time of one IDispatch::Invoke goes: TolvaList (made in the process, without a
// container, as a script's CreateObject leaves it) filled cell by cell through Invoke by dispatch
// id, the same cell through the list's own C++ member, and the steps of the automation layer one
// by one, beside the system's ListView given a cell's text by its message and the floor, an
// Invoke on an object that does nothing. Prints a table.
//
//     tolva_wine_invoke_bench [calls per round]        (default 200,000)
#include "bench/wine/timing.h"
#include "controls/list/tolva_list.h"
#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/control_object.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/com/ole_traits.h"
#include "platform/win32/com/untyped_dispatch.h"
#include "platform/win32/com/variant_conversion.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <commctrl.h>
#include <cstdio>
#include <cstdlib>

namespace tolva::win32 {
extern const ControlClass TolvaListClass;
}

using namespace tolva;
using namespace tolva::bench;
using namespace tolva::win32;

namespace {

constexpr int Rounds = 5, Rows = 1000, Columns = 4;
constexpr DISPID AutoRefreshId = 0x68030017, RowTextId = 0x68030018, AddColumnId = 0x60030022, AddRowId = 0x60030023;

// An object whose Invoke does nothing: the least a call through IDispatch can cost.
class Nothing final : public UntypedDispatch<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return S_OK;
    }

protected:
    void* Find(REFIID iid) override { return iid == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr; }
};

void Check(HRESULT hr, const char* what)
{
    if (FAILED(hr)) {
        std::fprintf(stderr, "%s failed: 0x%08lX\n", what, static_cast<unsigned long>(hr));
        std::exit(1);
    }
}

// The system's ListView in report view, in a hidden window, with the rows and columns given.
class ListView {
public:
    ListView()
        : m_window(CreateWindowExW(0, WC_LISTVIEWW, L"", WS_POPUP | LVS_REPORT, 0, 0, 800, 600, nullptr, nullptr,
            GetModuleHandleW(nullptr), nullptr))
    {
        for (int c = 0; c < Columns; ++c) {
            LVCOLUMNW column = {};
            column.mask = LVCF_WIDTH;
            column.cx = 100;
            SendMessageW(m_window, LVM_INSERTCOLUMNW, WPARAM(c), LPARAM(&column));
        }
        for (int r = 0; r < Rows; ++r) {
            LVITEMW item = {};
            item.iItem = r;
            SendMessageW(m_window, LVM_INSERTITEMW, 0, LPARAM(&item));
        }
    }
    ~ListView() { DestroyWindow(m_window); }
    void SetText(int row, int column, wchar_t* text)
    {
        LVITEMW cell = {};
        cell.iSubItem = column;
        cell.pszText = text;
        SendMessageW(m_window, LVM_SETITEMTEXTW, WPARAM(row), LPARAM(&cell));
    }

private:
    HWND m_window;
};

} // namespace

int main(int argc, char** argv)
{
    const int calls = argc > 1 ? std::atoi(argv[1]) : 200000;
    Check(OleInitialize(nullptr), "OleInitialize");
    INITCOMMONCONTROLSEX controls = { sizeof controls, ICC_LISTVIEW_CLASSES };
    InitCommonControlsEx(&controls);
    {
        ComPtr<IUnknown> unknown = ControlObject::Create(TolvaListClass);
        ControlObject& object = *static_cast<ControlObject*>(unknown.Get());
        TolvaList& list = object.ControlAs<TolvaList>();
        ComPtr<IDispatch> dispatch = unknown.As<IDispatch>(IID_IDispatch);
        IDispatch* d = dispatch.Get();
        BSTR text = SysAllocString(L"Payee 1000");
        wchar_t plain[] = L"Payee 1000";
        for (int c = 0; c < Columns; ++c)
            Check(test::InvokeWith(d, AddColumnId, DISPATCH_METHOD, { test::BorrowedText(text) }, false), "AddColumn");
        Check(test::InvokeWith(d, AutoRefreshId, DISPATCH_PROPERTYPUT, { test::Bool(false) }, true), "AutoRefresh");
        for (int r = 0; r < Rows; ++r)
            Check(test::InvokeWith(d, AddRowId, DISPATCH_METHOD, {}, false), "AddRow");
        auto nothing = ComPtr<IDispatch>::Adopt(new Nothing());
        ListView view;
        const VARIANT row = test::Long(Rows / 2), column = test::Long(2), value = test::BorrowedText(text);
        const DispatchMember* members = TolvaListClass.members.data();
        const size_t memberCount = TolvaListClass.members.size();

        const std::vector<TimedCase> cases {
            { L"floor: Invoke on an object that does nothing",
                [&](int) {
                    test::InvokeWith(nothing.Get(), RowTextId, DISPATCH_PROPERTYPUT, { row, column, value }, true);
                } },
            { L"TolvaList: RowText(row, column) = text, Invoke by dispatch id",
                [&](int) {
                    test::InvokeWith(d, RowTextId, DISPATCH_PROPERTYPUT, { row, column, value }, true);
                } },
            { L"TolvaList: the same through its C++ member",
                [&](int) { list.SetRowText(Variant(int32_t(Rows / 2)), Variant(int32_t(2)), u"Payee 1000"); } },
            { L"ListView: LVM_SETITEMTEXT of one cell", [&](int) { view.SetText(Rows / 2, 2, plain); } },
            { L"step: the dispatch id found in the list's table",
                [&](int) { FindMember(std::span(members, memberCount), RowTextId); } },
            { L"step: the error object cleared (SetErrorInfo)", [&](int) { ClearErrorObject(); } },
            { L"step: a Long argument as the core's Variant", [&](int) { ArgumentVariant(row); } },
            { L"step: a text argument for a StringView parameter", [&](int) { OleTraits<StringView>::From(value); } },
            { L"step: a text argument copied into a String", [&](int) { ToText(value); } },
            { L"step: a Long argument as a 32-bit integer", [&](int) { ToInt32(row); } },
        };
        const std::vector<double> us = MicrosecondsPerRepetition(cases, Rounds, calls);
        std::printf("| %d calls a round, median of %d rounds | us per call |\n", calls, Rounds);
        std::printf("|---|---:|\n");
        for (size_t i = 0; i < cases.size(); ++i)
            std::printf("| %ls | %.3f |\n", cases[i].name.c_str(), us[i]);
        SysFreeString(text);
    }
    OleUninitialize();
    return 0;
}
