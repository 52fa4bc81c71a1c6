#include "platform/win32/com/font_binding.h"
#include "platform/win32/com/control_object.h"
#include "platform/win32/com/dispatch_arguments.h"
#include "platform/win32/com/font_conversion.h"

namespace tolva::win32 {

namespace {

// Only a control's table has the Font entry, so the target is a control object.
void GetFont(BindingTarget& target, const DispatchArguments&, VARIANT& result)
{
    auto& object = static_cast<ControlObject&>(target);
    ComPtr<IFontDisp> font = object.FontObject().ObjectFor(object.Control().GetFont());
    V_VT(&result) = VT_DISPATCH;
    V_DISPATCH(&result) = font.Detach();
}

void SetFont(BindingTarget& target, const DispatchArguments& arguments)
{
    auto& object = static_cast<ControlObject&>(target);
    ComPtr<IFont> font = arguments.ConvertValue([](const VARIANT& value) {
        ComPtr<IFont> f = FontOf(value);
        if (!f)
            throw ComError(DISP_E_TYPEMISMATCH);
        return f;
    });
    object.Control().SetFont(object.FontObject().Attach(font.Get()));
}

} // namespace

DispatchMember FontProperty(DISPID id, const wchar_t* name)
{
    DispatchMember member;
    member.id = id;
    member.name = name;
    member.type = { OleType::Font };
    member.get = &GetFont;
    member.set = &SetFont;
    return member;
}

} // namespace tolva::win32
