#include "platform/win32/inplace/control_behaviour.h"
#include "platform/win32/com/control_class.h"
#include <olectl.h>
#include <string_view>

namespace tolva::win32 {

namespace {

constexpr DWORD EveryControl = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT
    | OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

} // namespace

ControlBehaviour BehaviourOf(const ControlClass& controlClass)
{
    const std::wstring_view name = controlClass.name;
    // The button takes the focus, clicks on Enter and shows the container's default mark.
    if (name == L"TolvaCommand")
        return { EveryControl | OLEMISC_ACTSLIKEBUTTON, CTRLINFO_EATS_RETURN, true };
    // A label has no key events: clicking it leaves the focus where it was.
    if (name == L"TolvaLabel")
        return { EveryControl | OLEMISC_NOUIACTIVATE, 0, false };
    return { EveryControl, 0, true };
}

} // namespace tolva::win32
