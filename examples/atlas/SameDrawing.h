// Compares two drawings, and counts their elements.
#ifndef ATLAS_SAME_DRAWING_H
#define ATLAS_SAME_DRAWING_H

class VEKPrtGraphicPrimitiveElt;

/// Whether two elements draw the same: class, geometry, attributes, colours and, in depth, children. Identity
/// strings do not count; an element of a class that the atlas does not use is the same as no other.
bool IsSameDrawing(VEKPrtGraphicPrimitiveElt& ioLeft, VEKPrtGraphicPrimitiveElt& ioRight);

/// The element itself and all below it.
int CountElements(VEKPrtGraphicPrimitiveElt& ioElement);

#endif
