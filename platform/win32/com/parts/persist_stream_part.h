#pragma once
#include "platform/win32/com/control_object.h"
#include <ocidl.h>

namespace tolva::win32 {

// IPersistStreamInit: the same properties as the property bag, in a versioned binary form
// (core/property_stream_format.h). A stream that is short, corrupt or of another version is refused
// with an error and the control stays as it was.
class PersistStreamPart final : public PartOf<IPersistStreamInit> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* clsid) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override;
    HRESULT STDMETHODCALLTYPE Load(IStream* stream) override;
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) override;
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) override;
    HRESULT STDMETHODCALLTYPE InitNew() override;

private:
    std::vector<uint8_t> Encoded();
};

} // namespace tolva::win32
