#include "tests/win32/support/fake_dispatch.h"

namespace tolva::win32::test {

void* FakeDispatch::Find(REFIID iid)
{
    return iid == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr;
}

void FakeDispatch::AddMember(DISPID id, const std::wstring& name, Handler handler)
{
    m_members[id] = { name, std::move(handler) };
}

void FakeDispatch::AddValue(DISPID id, const std::wstring& name, const VARIANT& value)
{
    auto stored = std::make_shared<OleVariant>();
    VariantCopy(stored->Put(), const_cast<VARIANT*>(&value));
    AddMember(id, name, [stored](WORD, const std::vector<VARIANT*>&, VARIANT& result) {
        return VariantCopy(&result, const_cast<VARIANT*>(&stored->Get()));
    });
}

void FakeDispatch::AddText(DISPID id, const std::wstring& name, const wchar_t* text)
{
    OleVariant value;
    V_VT(value.Put()) = VT_BSTR;
    V_BSTR(&value.Get()) = SysAllocString(text);
    AddValue(id, name, value.Get());
}

void FakeDispatch::AddLong(DISPID id, const std::wstring& name, LONG number)
{
    VARIANT value;
    V_VT(&value) = VT_I4;
    V_I4(&value) = number;
    AddValue(id, name, value);
}

void FakeDispatch::AddObject(DISPID id, const std::wstring& name, IDispatch* object)
{
    VARIANT value;
    V_VT(&value) = VT_DISPATCH;
    V_DISPATCH(&value) = object;
    AddValue(id, name, value);
}

HRESULT FakeDispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    for (UINT i = 0; i < count; ++i)
        ids[i] = DISPID_UNKNOWN;
    for (const auto& [id, member] : m_members) {
        if (_wcsicmp(member.name.c_str(), names[0]) == 0) {
            ids[0] = id;
            return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
        }
    }
    return DISP_E_UNKNOWNNAME;
}

HRESULT FakeDispatch::Invoke(
    DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO*, UINT*)
{
    auto found = m_members.find(id);
    if (found == m_members.end())
        return DISP_E_MEMBERNOTFOUND;
    std::vector<VARIANT*> arguments;
    for (UINT i = params->cArgs; i > 0; --i)
        arguments.push_back(&params->rgvarg[i - 1]);
    OleVariant value;
    HRESULT hr = found->second.handler(flags, arguments, *value.Put());
    if (result)
        value.MoveTo(*result);
    return hr;
}

} // namespace tolva::win32::test
