// Pixel images as PNG in a data URI.
#ifndef PngDataUri_H
#define PngDataUri_H

#include <string>

class VEKPixelImage;

/// Empty for an image without pixels and when encoding fails.
std::string PngDataUri(const VEKPixelImage& iImage);

#endif
