#pragma once
#include "platform/win32/com/com_object.h"
#include <oaidl.h>

namespace tolva::win32 {

// A simple COM object whose IDispatch describes itself with no type information: it has no
// type info to give, whatever the index, and knows no names unless it overrides GetIDsOfNames
// (event sinks and a site's ambient properties are called by id only). Interfaces must include
// IDispatch.
template <class... Interfaces> class UntypedDispatch : public ComObject<Interfaces...> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override
    {
        if (!count)
            return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override
    {
        if (info)
            *info = nullptr;
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return DISP_E_UNKNOWNNAME;
    }
};

} // namespace tolva::win32
