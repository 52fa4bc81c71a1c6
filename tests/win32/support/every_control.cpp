#include "tests/win32/support/every_control.h"
#include "platform/win32/com/bstr.h"

namespace tolva::win32::test {

std::string ClassName(const testing::TestParamInfo<const ControlClass*>& info)
{
    return ToUtf8(FromWide(info.param->name));
}

void ExpectEveryPropertyReads(IDispatch* control, const ControlClass& controlClass)
{
    for (const DispatchMember& member : controlClass.members) {
        if (member.isMethod || !member.parameters.empty())
            continue;
        VARIANT value;
        VariantInit(&value);
        DISPPARAMS none = {};
        EXPECT_EQ(
            control->Invoke(member.id, IID_NULL, 0x409, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr), S_OK)
            << ToUtf8(FromWide(member.name));
        VariantClear(&value);
    }
}

} // namespace tolva::win32::test
