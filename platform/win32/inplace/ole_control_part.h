#pragma once
#include "platform/win32/com/control_object.h"
#include <ocidl.h>

namespace tolva::win32 {

// IOleControl: the access keys of the caption as an accelerator table for the container, their
// presses passed on to the control, and ambient changes repainting it.
class OleControlPart final : public PartOf<IOleControl> {
public:
    using PartOf::PartOf;
    ~OleControlPart() override;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) override;
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* message) override;
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID id) override;
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) override;

private:
    HACCEL m_accelerators = nullptr; // the table last handed out; the control owns it
};

// The name of an ambient property as controls hear of its change (empty for DISPID_UNKNOWN:
// several changed).
StringView AmbientName(DISPID id);

} // namespace tolva::win32
