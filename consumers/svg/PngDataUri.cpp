#include "PngDataUri.h"

#include <png.h>

#include <new>
#include <vector>

#include "VEKPixelImage.h"

namespace vekprt::svg {

namespace {

std::string Base64(const std::vector<unsigned char>& iBytes) {
    static const char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((iBytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < iBytes.size(); i += 3) {
        const std::size_t left = iBytes.size() - i;
        const unsigned long bits = iBytes[i] * 0x10000UL + (left > 1 ? iBytes[i + 1] * 0x100UL : 0UL) +
                                   (left > 2 ? iBytes[i + 2] : 0UL);
        text += digits[bits >> 18];
        text += digits[bits >> 12 & 63U];
        text += left > 1 ? digits[bits >> 6 & 63U] : '=';
        text += left > 2 ? digits[bits & 63U] : '=';
    }
    return text;
}

} // namespace

std::string PngDataUri(const VEKPixelImage& iImage) {
    png_image png = {};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(iImage.GetWidth());
    png.height = static_cast<png_uint_32>(iImage.GetHeight());
    png.format = PNG_FORMAT_RGBA;
    // Rows follow one another, so the first one is the start of the whole picture.
    png_alloc_size_t size = 0;
    if (!png_image_write_get_memory_size(png, size, 0, iImage.GetRow(0), 0, nullptr)) throw std::bad_alloc();
    std::vector<unsigned char> bytes(size);
    if (!png_image_write_to_memory(&png, bytes.data(), &size, 0, iImage.GetRow(0), 0, nullptr))
        throw std::bad_alloc();
    bytes.resize(size);
    return "data:image/png;base64," + Base64(bytes);
}

} // namespace vekprt::svg
