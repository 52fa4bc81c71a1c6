#pragma once
#include "platform/win32/com/ole_variant.h"
#include "platform/win32/com/untyped_dispatch.h"
#include <functional>
#include <map>
#include <memory>
#include <oaidl.h>
#include <string>
#include <vector>

namespace tolva::win32::test {

// A late-bound object of the host (ambients, extender, form, collection) with members made up
// by the test: a value to read, or a handler for any call.
class FakeDispatch final : public UntypedDispatch<IDispatch> {
public:
    // arguments in the caller's order; result is empty on entry.
    using Handler = std::function<HRESULT(WORD flags, const std::vector<VARIANT*>& arguments, VARIANT& result)>;

    void AddMember(DISPID id, const std::wstring& name, Handler handler);
    void AddValue(DISPID id, const std::wstring& name, const VARIANT& value); // copied
    void AddText(DISPID id, const std::wstring& name, const wchar_t* text);
    void AddLong(DISPID id, const std::wstring& name, LONG value);
    void AddObject(DISPID id, const std::wstring& name, IDispatch* object);

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(
        DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO*, UINT*) override;

protected:
    void* Find(REFIID iid) override;

private:
    struct Member {
        std::wstring name;
        Handler handler;
    };
    std::map<DISPID, Member> m_members;
    std::vector<std::shared_ptr<OleVariant>> m_values;
};

} // namespace tolva::win32::test
