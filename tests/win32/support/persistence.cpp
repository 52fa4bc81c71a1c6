#include "tests/win32/support/persistence.h"

namespace tolva::win32::test {

ComPtr<RecordingPropertyBag> SavedBag(IUnknown* object, BOOL saveAllProperties)
{
    auto bag = ComPtr<RecordingPropertyBag>::Adopt(new RecordingPropertyBag);
    auto persist = ComPtr<IUnknown>(object).As<IPersistPropertyBag>(IID_IPersistPropertyBag);
    if (!persist || FAILED(persist->Save(bag.Get(), TRUE, saveAllProperties)))
        return {};
    return bag;
}

HRESULT LoadBag(IUnknown* object, IPropertyBag* bag)
{
    return ComPtr<IUnknown>(object).As<IPersistPropertyBag>(IID_IPersistPropertyBag)->Load(bag, nullptr);
}

HRESULT CopyThroughStream(IUnknown* from, IUnknown* to)
{
    ComPtr<IStream> stream;
    HRESULT hr = CreateStreamOnHGlobal(nullptr, TRUE, stream.Put());
    if (SUCCEEDED(hr))
        hr = ComPtr<IUnknown>(from).As<IPersistStreamInit>(IID_IPersistStreamInit)->Save(stream.Get(), TRUE);
    if (FAILED(hr))
        return hr;
    const LARGE_INTEGER start = {};
    stream->Seek(start, STREAM_SEEK_SET, nullptr);
    return ComPtr<IUnknown>(to).As<IPersistStreamInit>(IID_IPersistStreamInit)->Load(stream.Get());
}

} // namespace tolva::win32::test
