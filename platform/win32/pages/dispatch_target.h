#pragma once
#include "pages/page_target.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/windows_api.h"
#include <oaidl.h>

namespace tolva::win32 {

// A selected object as a page reaches it: names resolved with GetIDsOfNames, calls made through
// IDispatch::Invoke. An empty argument is passed as a missing one; a failure comes back as the
// object's own error (its EXCEPINFO) or as the call's HRESULT.
class DispatchTarget final : public PageTarget {
public:
    explicit DispatchTarget(IDispatch* object);

    Variant Get(StringView name, const std::vector<Variant>& indexes) override;
    void Put(StringView name, const std::vector<Variant>& indexes, const Variant& value) override;
    void Call(StringView name, const std::vector<Variant>& arguments) override;

private:
    Variant Invoke(StringView name, WORD flags, const std::vector<Variant>& arguments, bool namedValue);

    ComPtr<IDispatch> m_object;
};

} // namespace tolva::win32
