// A raster picture.
#ifndef VEKPixelImage_H
#define VEKPixelImage_H

#include "VEKBaseUnknown.h"

/// Rows of 8-bit RGBA pixels, the top row first, one after the other without gaps; all zero (transparent
/// black) at first.
class VEKFRAMEWORK_API VEKPixelImage : public VEKBaseUnknown {
public:
    /// 0 x 0 when a side is not positive or allocation fails.
    VEKPixelImage(int iWidth, int iHeight);
    ~VEKPixelImage() override;
    // Copies are made by Clone alone, which can report a failed allocation.
    VEKPixelImage(const VEKPixelImage&) = delete;
    VEKPixelImage& operator=(const VEKPixelImage&) = delete;

    /// A new image of the same pixels, with one reference, which is the caller's; null when allocation fails.
    virtual VEKPixelImage* Clone() const;

    int GetWidth() const { return _width; }
    int GetHeight() const { return _height; }

    /// Four bytes per pixel: red, green, blue, alpha.  Null out of range; lives as long as the image.
    const unsigned char* GetRow(int iY) const;
    unsigned char* GetRow(int iY);
    /// Out of range: nothing.
    void SetPixel(int iX, int iY, unsigned char iRed, unsigned char iGreen, unsigned char iBlue,
                  unsigned char iAlpha = 255);

private:
    int _width = 0;
    int _height = 0;
    unsigned char* _pixels = nullptr;
};

#endif
