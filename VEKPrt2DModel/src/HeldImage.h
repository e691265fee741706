// The pixel image that a fill or a bitmap holds by reference count.
#ifndef HeldImage_H
#define HeldImage_H

#include "VEKPixelImage.h"

namespace vekprt {

/// Makes \p ioHeld hold \p iImage; either may be null.  The old image is released before the new one gains
/// its reference.  The image already held keeps its count.
///
/// \p iImage is a reference because it may be the field of another record that the destructor of the old
/// image changes.
inline void HoldImage(VEKPixelImage*& ioHeld, VEKPixelImage* const& iImage) {
    if (iImage == ioHeld) return;
    if (ioHeld) ioHeld->Release();
    ioHeld = iImage;
    if (ioHeld) ioHeld->AddRef();
}

} // namespace vekprt

#endif
