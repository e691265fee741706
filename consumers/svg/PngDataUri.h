// Pixel images as text.
#ifndef PngDataUri_H
#define PngDataUri_H

#include <string>

class VEKPixelImage;

namespace vekprt::svg {

/// An image that has pixels, as PNG in a data URI.
std::string PngDataUri(const VEKPixelImage& iImage);

} // namespace vekprt::svg

#endif
