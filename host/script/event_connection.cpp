#include "host/script/event_connection.h"
#include "host/script/script_host.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/ole_variant.h"
#include <memory>
#include <olectl.h>
#include <vector>

namespace tolva::win32 {

namespace {

// The default source interface of an object's class, from its class information.
ComPtr<ITypeInfo> DefaultSourceInterface(IUnknown* source)
{
    auto classInfo = ComPtr<IUnknown>(source).As<IProvideClassInfo>(IID_IProvideClassInfo);
    ComPtr<ITypeInfo> coclass;
    if (!classInfo || FAILED(classInfo->GetClassInfo(coclass.Put())))
        throw ComError(CONNECT_E_NOCONNECTION);
    TYPEATTR* attributes = nullptr;
    ThrowIfFailed(coclass->GetTypeAttr(&attributes));
    const WORD count = attributes->cImplTypes;
    coclass->ReleaseTypeAttr(attributes);
    for (WORD i = 0; i < count; ++i) {
        INT flags = 0;
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> implemented;
        if (SUCCEEDED(coclass->GetImplTypeFlags(i, &flags))
            && (flags & (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE))
                == (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE)
            && SUCCEEDED(coclass->GetRefTypeOfImplType(i, &reference))
            && SUCCEEDED(coclass->GetRefTypeInfo(reference, implemented.Put())))
            return implemented;
    }
    throw ComError(CONNECT_E_NOCONNECTION);
}

// A typed by-reference argument lent to the script as a reference to a variant.
class Lent {
public:
    explicit Lent(VARIANT& original)
        : m_original(original)
    {
        VariantInit(&m_value);
        VariantCopyInd(&m_value, &original);
        V_VT(&m_reference) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&m_reference) = &m_value;
    }
    ~Lent() { VariantClear(&m_value); }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;

    VARIANT& Reference() { return m_reference; }

    // Writes what the script left in the variant back to the original's storage, converted to
    // its type; a value that does not convert leaves it unchanged.
    void GiveBack()
    {
        const VARTYPE type = V_VT(&m_original) & ~VT_BYREF;
        OleVariant converted;
        if (FAILED(VariantChangeType(converted.Put(), &m_value, 0, type)))
            return;
        VARIANT& v = converted.Get();
        switch (type) {
        case VT_I2:
            *V_I2REF(&m_original) = V_I2(&v);
            break;
        case VT_I4:
            *V_I4REF(&m_original) = V_I4(&v);
            break;
        case VT_R4:
            *V_R4REF(&m_original) = V_R4(&v);
            break;
        case VT_R8:
            *V_R8REF(&m_original) = V_R8(&v);
            break;
        case VT_BOOL:
            *V_BOOLREF(&m_original) = V_BOOL(&v);
            break;
        case VT_CY:
            *V_CYREF(&m_original) = V_CY(&v);
            break;
        case VT_DATE:
            *V_DATEREF(&m_original) = V_DATE(&v);
            break;
        case VT_UI1:
            *V_UI1REF(&m_original) = V_UI1(&v);
            break;
        case VT_BSTR:
            SysFreeString(*V_BSTRREF(&m_original));
            *V_BSTRREF(&m_original) = V_BSTR(&v);
            V_VT(&v) = VT_EMPTY; // the original owns the string now
            break;
        default:
            break;
        }
    }

    static bool Needed(const VARIANT& argument)
    {
        switch (V_VT(&argument)) {
        case VT_BYREF | VT_I2:
        case VT_BYREF | VT_I4:
        case VT_BYREF | VT_R4:
        case VT_BYREF | VT_R8:
        case VT_BYREF | VT_BOOL:
        case VT_BYREF | VT_CY:
        case VT_BYREF | VT_DATE:
        case VT_BYREF | VT_UI1:
        case VT_BYREF | VT_BSTR:
            return true;
        default:
            return false;
        }
    }

private:
    VARIANT& m_original;
    VARIANT m_value;
    VARIANT m_reference;
};

} // namespace

ComPtr<EventConnection> EventConnection::Connect(ScriptHost& host, IUnknown* source, std::wstring prefix)
{
    auto connection = ComPtr<EventConnection>::Adopt(new EventConnection(host, std::move(prefix)));
    connection->m_events = DefaultSourceInterface(source);
    TYPEATTR* attributes = nullptr;
    ThrowIfFailed(connection->m_events->GetTypeAttr(&attributes));
    connection->m_iid = attributes->guid;
    connection->m_events->ReleaseTypeAttr(attributes);

    auto container = ComPtr<IUnknown>(source).As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    if (!container)
        throw ComError(CONNECT_E_NOCONNECTION);
    ThrowIfFailed(container->FindConnectionPoint(connection->m_iid, connection->m_point.Put()));
    ThrowIfFailed(connection->m_point->Advise(static_cast<IDispatch*>(connection.Get()), &connection->m_cookie));
    connection->m_connected = true;
    return connection;
}

void EventConnection::Disconnect()
{
    if (m_connected)
        m_point->Unadvise(m_cookie);
    m_connected = false;
    m_point.Reset();
}

void* EventConnection::Find(REFIID iid)
{
    return iid == IID_IDispatch || iid == m_iid ? static_cast<IDispatch*>(this) : nullptr;
}

std::wstring EventConnection::EventName(DISPID id) const
{
    Bstr name;
    UINT found = 0;
    if (FAILED(m_events->GetNames(id, name.Put(), 1, &found)) || found == 0)
        return {};
    return name.Get();
}

HRESULT EventConnection::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*, EXCEPINFO*, UINT*)
{
    if (!params || !m_connected)
        return S_OK;
    try {
        ComPtr<EventConnection> keepAlive(this);
        const std::wstring name = EventName(id);
        ComPtr<IDispatch> globals = m_host.ScriptGlobals();
        if (name.empty() || !globals)
            return S_OK;
        std::wstring procedure = m_prefix + name;
        LPOLESTR names[] = { procedure.data() };
        DISPID procedureId = DISPID_UNKNOWN;
        if (FAILED(globals->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &procedureId)))
            return S_OK; // the script does not handle this event

        std::vector<std::unique_ptr<Lent>> lent;
        std::vector<VARIANT> arguments(params->rgvarg, params->rgvarg + params->cArgs);
        for (UINT i = 0; i < params->cArgs; ++i) {
            if (!Lent::Needed(params->rgvarg[i]))
                continue;
            lent.push_back(std::make_unique<Lent>(params->rgvarg[i]));
            arguments[i] = lent.back()->Reference();
        }
        DISPPARAMS call = { arguments.data(), nullptr, UINT(arguments.size()), 0 };
        OleVariant ignored;
        HRESULT hr = globals->Invoke(
            procedureId, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &call, ignored.Put(), nullptr, nullptr);
        for (auto& l : lent)
            l->GiveBack();
        return hr;
    } catch (...) {
        return S_OK; // an event is a notification: nothing goes back to the object
    }
}

} // namespace tolva::win32
