#include "tests/gui/png_reader.h"
#include "platform/win32/com/com_ptr.h"
#include <wincodec.h>

namespace tolva::win32::test {

// Decoded by the system's imaging component (Wine's decodes PNG with libpng), converted to
// 32-bit BGRA whatever the file's own layout.
std::optional<PngImage> ReadPng(const std::wstring& path)
{
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICBitmapDecoder> decoder;
    ComPtr<IWICBitmapFrameDecode> frame;
    ComPtr<IWICFormatConverter> converter;
    if (FAILED(CoCreateInstance(
            CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory, factory.PutVoid()))
        || FAILED(factory->CreateDecoderFromFilename(
            path.c_str(), nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand, decoder.Put()))
        || FAILED(decoder->GetFrame(0, frame.Put())) || FAILED(factory->CreateFormatConverter(converter.Put()))
        || FAILED(converter->Initialize(
            frame.Get(), GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone, nullptr, 0, WICBitmapPaletteTypeCustom)))
        return std::nullopt;
    UINT width = 0, height = 0;
    converter->GetSize(&width, &height);
    PngImage image { int(width), int(height), std::vector<uint32_t>(size_t(width) * height) };
    if (FAILED(converter->CopyPixels(nullptr, width * 4, UINT(image.pixels.size() * 4),
            reinterpret_cast<BYTE*>(image.pixels.data()))))
        return std::nullopt;
    // Each pixel reads as 0xAARRGGBB: red and blue swap places, alpha goes.
    for (uint32_t& pixel : image.pixels)
        pixel = ((pixel & 0xFF) << 16) | (pixel & 0xFF00) | ((pixel >> 16) & 0xFF);
    return image;
}

std::wstring HeadlessPictureFolder()
{
    wchar_t folder[MAX_PATH] = {};
    return GetEnvironmentVariableW(L"TOLVA_HEADLESS_PICTURES", folder, MAX_PATH) ? folder : L"";
}

} // namespace tolva::win32::test
