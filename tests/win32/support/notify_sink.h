#pragma once
#include "tests/win32/support/fake_object.h"
#include <functional>
#include <ocidl.h>
#include <vector>

namespace tolva::win32::test {

// A designer's property-notification sink: records the ids of OnChanged and lets the test act
// inside each notification (call back into the control, release it, unadvise).
class NotifySink final : public FakeObject<IPropertyNotifySink> {
public:
    // requestEdit tells a notification from OnRequestEdit apart from one from OnChanged.
    using Handler = std::function<void(DISPID id, bool requestEdit)>;

    void OnNotification(Handler handler) { m_handler = std::move(handler); }

    HRESULT STDMETHODCALLTYPE OnChanged(DISPID id) override
    {
        changed.push_back(id);
        if (m_handler)
            m_handler(id, false);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID id) override
    {
        if (m_handler)
            m_handler(id, true);
        return S_OK;
    }

    std::vector<DISPID> changed;

protected:
    void* Find(REFIID iid) override
    {
        return iid == IID_IPropertyNotifySink ? static_cast<IPropertyNotifySink*>(this) : nullptr;
    }

private:
    Handler m_handler;
};

} // namespace tolva::win32::test
