#include "VEKPixelImage.h"

#include <cstdint>
#include <cstring>
#include <new>

namespace {

std::size_t ByteCount(int iWidth, int iHeight) {
    return 4 * static_cast<std::size_t>(iWidth) * static_cast<std::size_t>(iHeight);
}

} // namespace

VEKPixelImage::VEKPixelImage(int iWidth, int iHeight) {
    // A new-expression throws if asked for more than PTRDIFF_MAX bytes.
    if (iWidth <= 0 || iHeight <= 0 || iWidth > PTRDIFF_MAX / 4 / iHeight) return;
    _pixels = new (std::nothrow) unsigned char[ByteCount(iWidth, iHeight)]();
    if (!_pixels) return;
    _width = iWidth;
    _height = iHeight;
}

VEKPixelImage::~VEKPixelImage() { delete[] _pixels; }

VEKPixelImage* VEKPixelImage::Clone() const {
    VEKPixelImage* const copy = new VEKPixelImage(_width, _height);
    if (!copy || !_pixels) return copy;
    if (!copy->_pixels) {
        copy->Release();
        return nullptr;
    }
    std::memcpy(copy->_pixels, _pixels, ByteCount(_width, _height));
    return copy;
}

const unsigned char* VEKPixelImage::GetRow(int iY) const {
    return iY >= 0 && iY < _height ? _pixels + ByteCount(_width, iY) : nullptr;
}

unsigned char* VEKPixelImage::GetRow(int iY) {
    return iY >= 0 && iY < _height ? _pixels + ByteCount(_width, iY) : nullptr;
}

void VEKPixelImage::SetPixel(int iX, int iY, unsigned char iRed, unsigned char iGreen, unsigned char iBlue,
                             unsigned char iAlpha) {
    unsigned char* const row = GetRow(iY);
    if (!row || iX < 0 || iX >= _width) return;
    unsigned char* const pixel = row + ByteCount(iX, 1);
    pixel[0] = iRed;
    pixel[1] = iGreen;
    pixel[2] = iBlue;
    pixel[3] = iAlpha;
}
