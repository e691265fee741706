// The pixel image that a fill or a bitmap holds by reference count.
#ifndef HeldImage_H
#define HeldImage_H

#include "VEKPixelImage.h"

namespace vekprt {

/// Makes \p ioHeld hold \p iImage, either of them perhaps null: the old image is released before the new one
/// gains its reference, and the image already held keeps its count.
inline void HoldImage(VEKPixelImage*& ioHeld, VEKPixelImage* iImage) {
    if (iImage == ioHeld) return;
    if (ioHeld) ioHeld->Release();
    ioHeld = iImage;
    if (ioHeld) ioHeld->AddRef();
}

} // namespace vekprt

#endif
