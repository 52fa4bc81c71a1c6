// TolvaScroll's refusals in a container: which assignments show a modal message box, with which
// text, in design mode and in run mode. The container is a minimal OLE site of the test's own
// (a window for IOleWindow and the ambient UserMode through IDispatch), attached through
// IOleObject::SetClientSite to a scroll bar created from the registered DLL by its ProgID. The
// test closes each box from a timer inside its modal loop, reading the text and pressing OK.
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/untyped_dispatch.h"
#include "tests/gui/gui_support.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include <gtest/gtest.h>
#include <olectl.h>
#include <optional>
#include <string>

namespace tolva::win32::test {
namespace {

constexpr DISPID ChangeId = 6;

// The container's site of one control: its window owns the control's modal boxes, and its
// ambient UserMode is whatever the test says at the moment the control asks.
class ModeSite final : public UntypedDispatch<IOleClientSite, IOleWindow, IDispatch> {
public:
    explicit ModeSite(HWND window)
        : m_window(window)
    { }

    bool userMode = false;

    HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override
    {
        *window = m_window;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE Invoke(
        DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override
    {
        if (id != DISPID_AMBIENT_USERMODE || !result)
            return DISP_E_MEMBERNOTFOUND;
        V_VT(result) = VT_BOOL;
        V_BOOL(result) = userMode ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
    }

protected:
    void* Find(REFIID iid) override
    {
        if (iid == IID_IOleClientSite)
            return static_cast<IOleClientSite*>(this);
        if (iid == IID_IOleWindow)
            return static_cast<IOleWindow*>(this);
        if (iid == IID_IDispatch)
            return static_cast<IDispatch*>(this);
        return nullptr;
    }

private:
    HWND m_window;
};

// A message box as the user saw it.
struct ShownBox {
    std::wstring title;
    std::wstring text;
    bool stopIcon = false;
    HWND owner = nullptr;
    bool ownerDisabled = false;
};

// Reads the box: its title, the text of its static control, whether its icon is the stop sign.
ShownBox ReadBox(HWND dialog)
{
    ShownBox box;
    box.title = TextOf(dialog);
    box.owner = GetWindow(dialog, GW_OWNER);
    box.ownerDisabled = box.owner && !IsWindowEnabled(box.owner);
    const HICON stop = LoadIconW(nullptr, IDI_HAND);
    for (HWND child : Children(dialog)) {
        if (_wcsicmp(ClassOf(child).c_str(), L"Static") != 0)
            continue;
        if ((GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
            box.stopIcon = HICON(SendMessageW(child, STM_GETICON, 0, 0)) == stop;
        else if (std::wstring text = TextOf(child); !text.empty())
            box.text = text;
    }
    return box;
}

class ScrollMessageBoxes : public testing::Test {
protected:
    void SetUp() override
    {
        CLSID clsid = {};
        ASSERT_EQ(CLSIDFromProgID(L"TolvaKit.TolvaScroll", &clsid), S_OK);
        ASSERT_EQ(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, scroll.PutVoid()), S_OK);
        ASSERT_EQ(scroll.As<IOleObject>(IID_IOleObject)->SetClientSite(site.Get()), S_OK);
        ASSERT_NE(Advise(scroll.Get(), events, sink.Get()), 0u);
    }
    void TearDown() override
    {
        if (scroll)
            scroll.As<IOleObject>(IID_IOleObject)->SetClientSite(nullptr);
    }

    // Assigns the property as a designer or program would; the box it showed, if any, closed
    // with OK.
    std::optional<ShownBox> Assign(const wchar_t* name, LONG value)
    {
        std::optional<ShownBox> shown;
        ModalDriver driver([&] {
            const std::vector<HWND> dialogs = ThreadWindowsOf(L"#32770", true);
            if (dialogs.empty())
                return false;
            HWND dialog = dialogs.front();
            shown = ReadBox(dialog);
            SendMessageW(GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0);
            return true;
        });
        EXPECT_EQ(Put(scroll.Get(), name, Long(value)), S_OK) << ToUtf8(ViewOf(name));
        return shown;
    }
    std::wstring TextShownFor(const wchar_t* name, LONG value)
    {
        std::optional<ShownBox> shown = Assign(name, value);
        return shown ? shown->text : L"(none)";
    }
    LONG Read(const wchar_t* name)
    {
        OleVariant value;
        Get(scroll.Get(), name, value);
        return AsLong(value);
    }

    const IID events = { 0xF18805C8, 0xD85C, 0x4F36, { 0x9A, 0x92, 0x7A, 0xDF, 0xB5, 0xCF, 0xC3, 0xF4 } };
    TestWindow form { 320, 240, L"Form1" };
    ComPtr<ModeSite> site = ComPtr<ModeSite>::Adopt(new ModeSite(form.Get()));
    ComPtr<IDispatch> scroll;
    ComPtr<EventSink> sink = ComPtr<EventSink>::Adopt(new EventSink(events));
};

TEST_F(ScrollMessageBoxes, TheBoxIsModalToTheSitesWindowWithTheStopIcon)
{
    site->userMode = false;
    std::optional<ShownBox> shown = Assign(L"Value", -5);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->owner, form.Get());
    EXPECT_TRUE(shown->ownerDisabled);
    EXPECT_TRUE(shown->stopIcon);
    EXPECT_EQ(shown->title, L"TolvaKit");
    EXPECT_TRUE(IsWindowEnabled(form.Get()));
}

// Which assignment is refused in which mode is the control's rule; the mode is the container's
// ambient UserMode, asked again at each assignment.
TEST_F(ScrollMessageBoxes, TheModeIsAskedAtEachAssignment)
{
    const struct {
        bool userMode;
        const wchar_t* name;
        LONG value;
        const wchar_t* shown;
    } assignments[] = {
        { false, L"Max", 1, L"Invalid property value" },
        { false, L"LargeChange", 101, L"Invalid propery value" },
        { false, L"Min", 100, L"(none)" },
        { false, L"Value", 50, L"(none)" },
        { true, L"Max", 1, L"(none)" },
        { true, L"Value", 500, L"(none)" },
        { true, L"Min", 100, L"Invalid property value" },
        { false, L"Max", 1, L"Invalid property value" },
    };
    for (const auto& a : assignments) {
        site->userMode = a.userMode;
        EXPECT_EQ(TextShownFor(a.name, a.value), a.shown) << ToUtf8(ViewOf(a.name)) << " in user mode " << a.userMode;
    }
    EXPECT_EQ(Read(L"Min"), 1);
    EXPECT_EQ(Read(L"Max"), 100);
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { ChangeId })); // from the accepted Value alone
}

} // namespace
} // namespace tolva::win32::test
