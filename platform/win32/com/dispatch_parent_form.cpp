#include "platform/win32/com/dispatch_parent_form.h"
#include "core/automation_error.h"
#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/dispatch_call.h"
#include <array>

namespace tolva::win32 {

namespace {

ComPtr<IDispatch> ObjectIn(const OleVariant& value)
{
    const VARIANT& v = value.Get();
    if (V_VT(&v) == VT_DISPATCH)
        return ComPtr<IDispatch>(V_DISPATCH(&v));
    if (V_VT(&v) == VT_UNKNOWN && V_UNKNOWN(&v))
        return ComPtr<IUnknown>(V_UNKNOWN(&v)).As<IDispatch>(IID_IDispatch);
    return {};
}

} // namespace

std::shared_ptr<HostObject> DispatchParentForm::Control(StringView name)
{
    // Controls(name): the collection's default member with the name.
    OleVariant controls;
    DispatchCall::GetProperty(m_form.Get(), L"Controls", controls);
    ComPtr<IDispatch> collection = ObjectIn(controls);
    if (!collection)
        return nullptr;
    OleVariant argument;
    PutText(argument.Get(), name);
    OleVariant item;
    DispatchCall::Invoke(collection.Get(), DISPID_VALUE, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
        std::span<VARIANT>(&argument.Get(), 1), item);
    ComPtr<IDispatch> control = ObjectIn(item);
    if (!control)
        return nullptr;
    return std::make_shared<DispatchHostObject>(std::move(control));
}

PixelPoint DispatchParentForm::ScreenOrigin()
{
    OleVariant handle;
    DispatchCall::GetProperty(m_form.Get(), L"hwnd", handle);
    // A window handle travels as a Long; its 32 bits are the whole handle on 64-bit Windows too.
    auto window = reinterpret_cast<HWND>(static_cast<intptr_t>(ToInt32(handle.Get())));
    POINT origin = { 0, 0 };
    if (!IsWindow(window) || !ClientToScreen(window, &origin))
        throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall);
    return { origin.x, origin.y };
}

void DispatchParentForm::PopupMenu(HostObject& menu, double x, double y)
{
    auto* object = dynamic_cast<DispatchHostObject*>(&menu);
    if (!object)
        throw AutomationError::RunTime(RunTimeError::TypeMismatch);
    // PopupMenu Menu, [Flags], X, Y with the flags left out.
    std::array<VARIANT, 4> arguments;
    V_VT(&arguments[0]) = VT_DISPATCH;
    V_DISPATCH(&arguments[0]) = object->Object();
    V_VT(&arguments[1]) = VT_ERROR;
    V_ERROR(&arguments[1]) = DISP_E_PARAMNOTFOUND;
    V_VT(&arguments[2]) = VT_R8;
    V_R8(&arguments[2]) = x;
    V_VT(&arguments[3]) = VT_R8;
    V_R8(&arguments[3]) = y;
    OleVariant result;
    DispatchCall::Invoke(
        m_form.Get(), DispatchCall::IdOf(m_form.Get(), L"PopupMenu"), DISPATCH_METHOD, arguments, result);
}

} // namespace tolva::win32
