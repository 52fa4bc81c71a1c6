#include "tests/win32/support/type_info_reading.h"
#include "platform/win32/com/bstr.h"

namespace tolva::win32::test {

std::wstring NameOf(ITypeInfo* info, MEMBERID id)
{
    Bstr name;
    info->GetDocumentation(id, name.Put(), nullptr, nullptr, nullptr);
    return name.Get() ? name.Get() : L"";
}

void ForEachFunction(ITypeInfo* info, const std::function<void(const FUNCDESC&)>& visit)
{
    TYPEATTR* attributes = nullptr;
    info->GetTypeAttr(&attributes);
    const WORD count = attributes->cFuncs;
    info->ReleaseTypeAttr(attributes);
    for (WORD i = 0; i < count; ++i) {
        FUNCDESC* function = nullptr;
        info->GetFuncDesc(i, &function);
        visit(*function);
        info->ReleaseFuncDesc(function);
    }
}

std::map<std::wstring, LONG> EnumerationValues(ITypeInfo* enumeration)
{
    std::map<std::wstring, LONG> values;
    TYPEATTR* attributes = nullptr;
    enumeration->GetTypeAttr(&attributes);
    for (WORD i = 0; i < attributes->cVars; ++i) {
        VARDESC* variable = nullptr;
        enumeration->GetVarDesc(i, &variable);
        values[NameOf(enumeration, variable->memid)] = V_I4(variable->lpvarValue);
        enumeration->ReleaseVarDesc(variable);
    }
    enumeration->ReleaseTypeAttr(attributes);
    return values;
}

} // namespace tolva::win32::test
