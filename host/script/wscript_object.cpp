#include "host/script/wscript_object.h"
#include "host/script/script_host.h"
#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/ole_variant.h"

namespace tolva::win32 {

namespace {

enum Member : DISPID { EchoId = 1, CreateObjectId, ConnectObjectId, SleepId, QuitId };

struct Named {
    const wchar_t* name;
    DISPID id;
};
constexpr Named Members[] = { { L"Echo", EchoId }, { L"CreateObject", CreateObjectId },
    { L"ConnectObject", ConnectObjectId }, { L"Sleep", SleepId }, { L"Quit", QuitId } };

// Stops the running script after Quit: an error that the host knows not to report.
constexpr HRESULT QuitRequested = HRESULT(0x800A0000u + 0xFFFF);

// The arguments in the caller's order, by-reference ones dereferenced.
std::vector<VARIANT> ArgumentsOf(const DISPPARAMS& params)
{
    std::vector<VARIANT> arguments(params.cArgs);
    for (UINT i = 0; i < params.cArgs; ++i) {
        VariantInit(&arguments[i]);
        if (FAILED(VariantCopyInd(&arguments[i], &params.rgvarg[params.cArgs - 1 - i])))
            throw ComError(DISP_E_TYPEMISMATCH);
    }
    return arguments;
}

ComPtr<IUnknown> ObjectIn(const VARIANT& value)
{
    if (V_VT(&value) == VT_DISPATCH)
        return ComPtr<IUnknown>(V_DISPATCH(&value));
    if (V_VT(&value) == VT_UNKNOWN)
        return ComPtr<IUnknown>(V_UNKNOWN(&value));
    return {};
}

} // namespace

void* WScriptObject::Find(REFIID iid)
{
    return iid == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr;
}

HRESULT WScriptObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    if (!names || !ids || count == 0)
        return E_INVALIDARG;
    HRESULT hr = count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
    for (UINT i = 0; i < count; ++i)
        ids[i] = DISPID_UNKNOWN;
    for (const Named& member : Members)
        if (CompareStringOrdinal(member.name, -1, names[0], -1, TRUE) == CSTR_EQUAL)
            ids[0] = member.id;
    return ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : hr;
}

HRESULT WScriptObject::Invoke(
    DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO*, UINT*)
{
    if (!params)
        return E_POINTER;
    if (!(flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET)))
        return DISP_E_MEMBERNOTFOUND;
    if (result)
        VariantInit(result);
    std::vector<VARIANT> arguments;
    HRESULT hr = S_OK;
    try {
        arguments = ArgumentsOf(*params);
        switch (id) {
        case EchoId:
            hr = Echo(arguments);
            break;
        case CreateObjectId:
            hr = CreateObject(arguments, result);
            break;
        case ConnectObjectId:
            hr = ConnectObject(arguments);
            break;
        case SleepId:
            hr = Sleep(arguments);
            break;
        case QuitId:
            hr = Quit(arguments);
            break;
        default:
            hr = DISP_E_MEMBERNOTFOUND;
            break;
        }
    } catch (const ComError& e) {
        hr = e.Result();
    } catch (...) {
        hr = E_UNEXPECTED;
    }
    for (VARIANT& argument : arguments)
        VariantClear(&argument);
    return hr;
}

HRESULT WScriptObject::Echo(const std::vector<VARIANT>& arguments)
{
    std::wstring line;
    for (const VARIANT& argument : arguments) {
        if (!line.empty())
            line += L' ';
        if (V_VT(&argument) == VT_NULL)
            line += L"Null";
        else if (V_VT(&argument) != VT_EMPTY)
            line += std::wstring(reinterpret_cast<const wchar_t*>(ToText(argument).c_str()));
    }
    m_host.Echo(line);
    return S_OK;
}

HRESULT WScriptObject::CreateObject(const std::vector<VARIANT>& arguments, VARIANT* result)
{
    if (arguments.empty() || arguments.size() > 2)
        return DISP_E_BADPARAMCOUNT;
    String progId = ToText(arguments[0]);
    CLSID clsid = {};
    if (FAILED(CLSIDFromProgID(WidePointer(progId), &clsid)))
        return HRESULT(0x800A01AD); // run-time error 429: ActiveX component can't create object
    ComPtr<IDispatch> object;
    HRESULT hr
        = CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, object.PutVoid());
    if (FAILED(hr))
        return HRESULT(0x800A01AD);
    if (arguments.size() == 2)
        m_host.ConnectEvents(object.Get(), reinterpret_cast<const wchar_t*>(ToText(arguments[1]).c_str()));
    if (result) {
        V_VT(result) = VT_DISPATCH;
        V_DISPATCH(result) = object.Detach();
    }
    return S_OK;
}

HRESULT WScriptObject::ConnectObject(const std::vector<VARIANT>& arguments)
{
    if (arguments.size() != 2)
        return DISP_E_BADPARAMCOUNT;
    ComPtr<IUnknown> object = ObjectIn(arguments[0]);
    if (!object)
        return DISP_E_TYPEMISMATCH;
    m_host.ConnectEvents(object.Get(), reinterpret_cast<const wchar_t*>(ToText(arguments[1]).c_str()));
    return S_OK;
}

HRESULT WScriptObject::Sleep(const std::vector<VARIANT>& arguments)
{
    if (arguments.size() != 1)
        return DISP_E_BADPARAMCOUNT;
    int32_t milliseconds = ToInt32(arguments[0]);
    if (milliseconds < 0)
        return HRESULT(0x800A0005); // invalid procedure call
    ScriptHost::Sleep(static_cast<unsigned long>(milliseconds));
    return S_OK;
}

HRESULT WScriptObject::Quit(const std::vector<VARIANT>& arguments)
{
    if (arguments.size() > 1)
        return DISP_E_BADPARAMCOUNT;
    m_host.RequestQuit(arguments.empty() || IsMissing(arguments[0]) ? 0 : ToInt32(arguments[0]));
    return QuitRequested;
}

} // namespace tolva::win32
