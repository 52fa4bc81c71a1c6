#pragma once
#include "platform/win32/com/control_behaviour.h"
#include "platform/win32/com/dispatch_member.h"
#include "platform/win32/com/hosted_control.h"
#include "platform/win32/toolbox/toolbox_bitmap.h"
#include <span>
#include <string>

namespace tolva::win32 {

// What the shell knows of one creatable control: its name (the ProgID is "TolvaKit.<name>"),
// its GUIDs in the type library, its binding table, how to build the core control and how it
// behaves towards containers (a focusable control unless it says otherwise).
struct ControlClass {
    const wchar_t* name;
    const CLSID* clsid;
    const IID* dispatchIid; // the default dispinterface
    const IID* eventIid; // the default source dispinterface
    std::span<const DispatchMember> members;
    HostedControlFactory create;
    ControlBehaviour behaviour = Behaviours::Focusable;

    std::wstring ProgId() const { return std::wstring(L"TolvaKit.") + name; }
    std::wstring VersionedProgId() const { return ProgId() + L".1"; }
    // The name of the first instance a designer would place, used where no extender names it.
    std::wstring DefaultInstanceName() const { return std::wstring(name) + L"1"; }
    // The resource id of its toolbox bitmap, found by its name; 0 when none is drawn for it.
    int ToolboxBitmap() const { return ToolboxBitmapOf(name); }
};

// Every creatable control of the library.
std::span<const ControlClass* const> ControlClasses();
const ControlClass* FindControlClass(REFCLSID clsid);

} // namespace tolva::win32
