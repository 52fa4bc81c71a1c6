#pragma once
#include "platform/win32/com/com_ptr.h"
#include "tests/gui/gui_support.h"
#include "tests/win32/support/event_sink.h"
#include <gtest/gtest.h>

namespace tolva::win32::test {

// A control in Wine's ATL container (the AtlAxWin window class of atl.dll): created from its
// ProgID in a child window of a test form, with a sink of ours advised on its events.
class AtlHosted : public testing::Test {
protected:
    // Hosts progId in a container at (x, y) of the form, width x height pixels, and connects
    // sink to its events interface.
    void Host(const wchar_t* progId, const IID& events, int x, int y, int width, int height);
    void TearDown() override;

    // A property read through the control's IDispatch, as a number.
    LONG Read(const wchar_t* name);
    // How many times the sink received event id.
    size_t Count(DISPID id) const;
    // The events the sink received, in order, but for those of id (the many mouse moves).
    std::vector<DISPID> IdsWithout(DISPID id) const;

    TestWindow form { 320, 240 };
    HWND container = nullptr;
    HWND window = nullptr; // the control's own, inside the container
    ComPtr<IUnknown> control;
    ComPtr<IDispatch> dispatch;
    ComPtr<EventSink> sink;
};

} // namespace tolva::win32::test
