#include "tools/reference/type_library_reader.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/ole_variant.h"

namespace tolva::reference {

using win32::Bstr;
using win32::ComPtr;
using win32::ThrowIfFailed;

namespace {

// The type, function and variable descriptions, released by their owners.
struct TypeAttributes {
    explicit TypeAttributes(ITypeInfo* info)
        : info(info)
    {
        ThrowIfFailed(info->GetTypeAttr(&attributes));
    }
    ~TypeAttributes() { info->ReleaseTypeAttr(attributes); }
    const TYPEATTR* operator->() const { return attributes; }
    ITypeInfo* info;
    TYPEATTR* attributes = nullptr;
};

struct Function {
    Function(ITypeInfo* info, UINT index)
        : info(info)
    {
        ThrowIfFailed(info->GetFuncDesc(index, &description));
    }
    ~Function() { info->ReleaseFuncDesc(description); }
    const FUNCDESC* operator->() const { return description; }
    ITypeInfo* info;
    FUNCDESC* description = nullptr;
};

struct Variable {
    Variable(ITypeInfo* info, UINT index)
        : info(info)
    {
        ThrowIfFailed(info->GetVarDesc(index, &description));
    }
    ~Variable() { info->ReleaseVarDesc(description); }
    const VARDESC* operator->() const { return description; }
    ITypeInfo* info;
    VARDESC* description = nullptr;
};

std::wstring Text(const Bstr& text)
{
    return text.Get() ? std::wstring(text.Get()) : std::wstring();
}

std::wstring NameOf(ITypeInfo* info, MEMBERID id = MEMBERID_NIL)
{
    Bstr name;
    info->GetDocumentation(id, name.Put(), nullptr, nullptr, nullptr);
    return Text(name);
}

std::wstring HelpOf(ITypeInfo* info, MEMBERID id = MEMBERID_NIL)
{
    Bstr help;
    info->GetDocumentation(id, nullptr, help.Put(), nullptr, nullptr);
    return Text(help);
}

std::wstring BaseTypeName(VARTYPE type)
{
    switch (type) {
    case VT_I1: return L"Char";
    case VT_UI1: return L"Byte";
    case VT_I2: return L"Integer";
    case VT_UI2: return L"Unsigned Integer";
    case VT_I4: case VT_INT: return L"Long";
    case VT_UI4: case VT_UINT: return L"Unsigned Long";
    case VT_I8: return L"LongLong";
    case VT_R4: return L"Single";
    case VT_R8: return L"Double";
    case VT_CY: return L"Currency";
    case VT_DATE: return L"Date";
    case VT_BSTR: return L"String";
    case VT_BOOL: return L"Boolean";
    case VT_VARIANT: return L"Variant";
    case VT_DISPATCH: return L"Object";
    case VT_UNKNOWN: return L"IUnknown";
    case VT_ERROR: case VT_HRESULT: return L"HRESULT";
    case VT_VOID: return L"";
    default: return L"VARTYPE " + std::to_wstring(type);
    }
}

// The name of a type; a pointer is the type it points to (the caller notes the reference).
std::wstring TypeName(ITypeInfo* info, const TYPEDESC& type)
{
    switch (type.vt) {
    case VT_PTR:
        return TypeName(info, *type.lptdesc);
    case VT_SAFEARRAY:
        return TypeName(info, *type.lptdesc) + L"()";
    case VT_USERDEFINED: {
        ComPtr<ITypeInfo> referenced;
        ThrowIfFailed(info->GetRefTypeInfo(type.hreftype, referenced.Put()));
        return NameOf(referenced.Get());
    }
    default:
        return BaseTypeName(type.vt);
    }
}

std::wstring DefaultValueText(VARIANT& value)
{
    switch (V_VT(&value)) {
    case VT_BOOL:
        return V_BOOL(&value) ? L"True" : L"False";
    case VT_BSTR:
        return L"\"" + std::wstring(V_BSTR(&value) ? V_BSTR(&value) : L"") + L"\"";
    case VT_EMPTY:
        return L"Empty";
    default: {
        win32::OleVariant text;
        if (FAILED(VariantChangeTypeEx(text.Put(), &value, LOCALE_INVARIANT, 0, VT_BSTR)))
            return L"(a value of type " + BaseTypeName(V_VT(&value)) + L")";
        return V_BSTR(&text.Get());
    }
    }
}

// The names GetNames gives for a member: its own, then its parameters'. A property put's value
// has none.
class MemberNames {
public:
    MemberNames(ITypeInfo* info, MEMBERID id, UINT capacity)
        : m_names(capacity, nullptr)
    {
        info->GetNames(id, m_names.data(), capacity, &m_count);
    }
    ~MemberNames()
    {
        for (UINT i = 0; i < m_count; ++i)
            SysFreeString(m_names[i]);
    }
    MemberNames(const MemberNames&) = delete;
    MemberNames& operator=(const MemberNames&) = delete;

    std::wstring Parameter(UINT index) const
    {
        return index + 1 < m_count && m_names[index + 1] ? m_names[index + 1] : L"value";
    }

private:
    std::vector<BSTR> m_names;
    UINT m_count = 0;
};

std::vector<Parameter> ParametersOf(ITypeInfo* info, const FUNCDESC& function, UINT count)
{
    const MemberNames names(info, function.memid, UINT(function.cParams + 1));
    std::vector<Parameter> parameters;
    for (UINT i = 0; i < count; ++i) {
        const ELEMDESC& element = function.lprgelemdescParam[i];
        const USHORT flags = element.paramdesc.wParamFlags;
        Parameter parameter;
        parameter.name = names.Parameter(i);
        parameter.type = TypeName(info, element.tdesc);
        parameter.byReference = element.tdesc.vt == VT_PTR;
        parameter.optional = (flags & (PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT)) != 0;
        if ((flags & PARAMFLAG_FHASDEFAULT) && element.paramdesc.pparamdescex)
            parameter.defaultValue = DefaultValueText(element.paramdesc.pparamdescex->varDefaultValue);
        parameters.push_back(std::move(parameter));
    }
    return parameters;
}

Member* FindMember(std::vector<Member>& members, MEMBERID id)
{
    for (Member& member : members)
        if (member.id == id)
            return &member;
    return nullptr;
}

// The members of a dispinterface; a property's get, let and set make one member.
Interface ReadInterface(ITypeInfo* info)
{
    Interface result;
    result.name = NameOf(info);
    result.help = HelpOf(info);
    const TypeAttributes attributes(info);
    result.iid = attributes->guid;
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
        const Function function(info, i);
        const INVOKEKIND kind = function->invkind;
        Member* member = FindMember(result.members, function->memid);
        if (!member) {
            member = &result.members.emplace_back();
            member->name = NameOf(info, function->memid);
            member->id = function->memid;
            member->help = HelpOf(info, function->memid);
        }
        switch (kind) {
        case INVOKE_PROPERTYGET:
            member->property = member->get = true;
            member->type = TypeName(info, function->elemdescFunc.tdesc);
            member->parameters = ParametersOf(info, *function.description, function->cParams);
            break;
        case INVOKE_PROPERTYPUT:
        case INVOKE_PROPERTYPUTREF: {
            member->property = true;
            (kind == INVOKE_PROPERTYPUT ? member->let : member->set) = true;
            if (!member->get && function->cParams > 0) {
                const UINT last = UINT(function->cParams - 1);
                member->type = TypeName(info, function->lprgelemdescParam[last].tdesc);
                member->parameters = ParametersOf(info, *function.description, last);
            }
            break;
        }
        default:
            member->type = TypeName(info, function->elemdescFunc.tdesc);
            member->parameters = ParametersOf(info, *function.description, function->cParams);
        }
    }
    return result;
}

// The default interface, or the default source interface, of a coclass.
ComPtr<ITypeInfo> DefaultInterface(ITypeInfo* coclass, bool source)
{
    const TypeAttributes attributes(coclass);
    for (UINT i = 0; i < attributes->cImplTypes; ++i) {
        INT flags = 0;
        ThrowIfFailed(coclass->GetImplTypeFlags(i, &flags));
        if (!(flags & IMPLTYPEFLAG_FDEFAULT) || bool(flags & IMPLTYPEFLAG_FSOURCE) != source)
            continue;
        HREFTYPE reference = 0;
        ThrowIfFailed(coclass->GetRefTypeOfImplType(i, &reference));
        ComPtr<ITypeInfo> info;
        ThrowIfFailed(coclass->GetRefTypeInfo(reference, info.Put()));
        return info;
    }
    return {};
}

ControlClassDescription ReadClass(ITypeInfo* coclass)
{
    ControlClassDescription result;
    result.name = NameOf(coclass);
    result.help = HelpOf(coclass);
    result.clsid = TypeAttributes(coclass)->guid;
    if (ComPtr<ITypeInfo> dispatch = DefaultInterface(coclass, false))
        result.dispatch = ReadInterface(dispatch.Get());
    if (ComPtr<ITypeInfo> events = DefaultInterface(coclass, true))
        result.events = ReadInterface(events.Get());
    return result;
}

Enumeration ReadEnumeration(ITypeInfo* info)
{
    Enumeration result;
    result.name = NameOf(info);
    result.help = HelpOf(info);
    const TypeAttributes attributes(info);
    for (UINT i = 0; i < attributes->cVars; ++i) {
        const Variable variable(info, i);
        win32::OleVariant value;
        ThrowIfFailed(VariantChangeType(value.Put(), variable->lpvarValue, 0, VT_I4));
        result.members.emplace_back(NameOf(info, variable->memid), V_I4(&value.Get()));
    }
    return result;
}

} // namespace

LibraryDescription ReadTypeLibrary(ITypeLib* library)
{
    LibraryDescription result;
    Bstr name, help;
    ThrowIfFailed(library->GetDocumentation(MEMBERID_NIL, name.Put(), help.Put(), nullptr, nullptr));
    result.name = Text(name);
    result.help = Text(help);
    TLIBATTR* attributes = nullptr;
    ThrowIfFailed(library->GetLibAttr(&attributes));
    result.guid = attributes->guid;
    result.majorVersion = attributes->wMajorVerNum;
    result.minorVersion = attributes->wMinorVerNum;
    library->ReleaseTLibAttr(attributes);

    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> info;
        ThrowIfFailed(library->GetTypeInfo(i, info.Put()));
        const TypeAttributes type(info.Get());
        switch (type->typekind) {
        case TKIND_COCLASS:
            if (type->wTypeFlags & TYPEFLAG_FCANCREATE)
                result.classes.push_back(ReadClass(info.Get()));
            break;
        case TKIND_ENUM:
            result.enumerations.push_back(ReadEnumeration(info.Get()));
            break;
        case TKIND_ALIAS:
            result.aliases.push_back({ NameOf(info.Get()), TypeName(info.Get(), type->tdescAlias), type->guid });
            break;
        default:
            break;
        }
    }
    return result;
}

} // namespace tolva::reference
