/// \file
/// A raster picture.
#ifndef VEKPixelImage_H
#define VEKPixelImage_H

#include "VEKBaseUnknown.h"

/// Rows of 8-bit RGBA pixels from top to bottom, without gaps.  A new image is transparent black, all zeros.
class VEKFRAMEWORK_API VEKPixelImage : public VEKBaseUnknown {
public:
    /// 0 x 0 if a side is not positive or allocation fails.
    VEKPixelImage(int iWidth, int iHeight);
    ~VEKPixelImage() override;
    // Only Clone makes copies: it can report a failed allocation.
    VEKPixelImage(const VEKPixelImage&) = delete;
    VEKPixelImage& operator=(const VEKPixelImage&) = delete;

    /// A new image with the same pixels and one reference, the caller's; null when allocation fails.
    virtual VEKPixelImage* Clone() const;

    int GetWidth() const { return _width; }
    int GetHeight() const { return _height; }

    /// Four bytes per pixel: red, green, blue, alpha.  Null out of range; valid as long as the image exists.
    const unsigned char* GetRow(int iY) const;
    unsigned char* GetRow(int iY);
    /// Does nothing out of range.
    void SetPixel(int iX, int iY, unsigned char iRed, unsigned char iGreen, unsigned char iBlue,
                  unsigned char iAlpha = 255);

private:
    int _width = 0;
    int _height = 0;
    unsigned char* _pixels = nullptr;
};

#endif
