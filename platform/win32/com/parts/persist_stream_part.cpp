#include "platform/win32/com/parts/persist_stream_part.h"
#include "core/automation_error.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/error_reporting.h"
#include "core/property_stream_format.h"
#include <array>

namespace tolva::win32 {

namespace {

// Reads exactly bytes.size() bytes; a stream that ends early is corrupt.
void ReadExactly(IStream* stream, std::span<uint8_t> bytes)
{
    ULONG read = 0;
    HRESULT hr = stream->Read(bytes.data(), ULONG(bytes.size()), &read);
    if (FAILED(hr))
        throw ComError(hr);
    if (read != bytes.size())
        throw AutomationError(
            int32_t(STG_E_DOCFILECORRUPT), u"TolvaKit", u"The stream ends before the control's properties do");
}

} // namespace

void* PersistStreamPart::Interface(REFIID iid)
{
    if (iid == IID_IPersistStreamInit || iid == IID_IPersist)
        return static_cast<IPersistStreamInit*>(this);
    return nullptr;
}

HRESULT PersistStreamPart::GetClassID(CLSID* clsid)
{
    if (!clsid)
        return E_POINTER;
    *clsid = *m_object.Class().clsid;
    return S_OK;
}

HRESULT PersistStreamPart::IsDirty()
{
    return m_object.IsDirty() ? S_OK : S_FALSE;
}

HRESULT PersistStreamPart::Load(IStream* stream)
{
    if (!stream)
        return E_POINTER;
    return Entered(IID_IPersistStreamInit, [&] {
        std::array<uint8_t, PropertyStream::HeaderSize> headerBytes;
        ReadExactly(stream, headerBytes);
        PropertyStream::Header header = PropertyStream::DecodeHeader(headerBytes);
        std::vector<uint8_t> payload(header.payloadSize);
        ReadExactly(stream, payload);
        MemoryPropertyBag values = PropertyStream::DecodePayload(header, payload);
        m_object.Load(values);
        return S_OK;
    });
}

std::vector<uint8_t> PersistStreamPart::Encoded()
{
    MemoryPropertyBag values;
    m_object.Save(values);
    return PropertyStream::Encode(values);
}

HRESULT PersistStreamPart::Save(IStream* stream, BOOL clearDirty)
{
    if (!stream)
        return E_POINTER;
    return Entered(IID_IPersistStreamInit, [&] {
        std::vector<uint8_t> bytes = Encoded();
        ULONG written = 0;
        ThrowIfFailed(stream->Write(bytes.data(), ULONG(bytes.size()), &written));
        if (written != bytes.size())
            throw ComError(STG_E_MEDIUMFULL);
        if (clearDirty)
            m_object.SetDirty(false);
        return S_OK;
    });
}

HRESULT PersistStreamPart::GetSizeMax(ULARGE_INTEGER* size)
{
    if (!size)
        return E_POINTER;
    return Entered(IID_IPersistStreamInit, [&] {
        size->QuadPart = Encoded().size();
        return S_OK;
    });
}

HRESULT PersistStreamPart::InitNew()
{
    return Entered(IID_IPersistStreamInit, [this] {
        m_object.InitNew();
        return S_OK;
    });
}

} // namespace tolva::win32
