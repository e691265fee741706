// Cuts rings and polylines to a box, and changes how densely they are sampled.
#ifndef Clip_H
#define Clip_H

#include <vector>

#include "Geometry.h"

/// The part of the ring within the box; empty when there is none.
///
/// Parts that fall asunder stay joined by edges along the box, which enclose no area.
Path ClipRing(const Path& iRing, const Box& iBox);

/// The parts of the polyline within the box.
std::vector<Path> ClipLine(const Path& iLine, const Box& iBox);

/// Adds points so that no edge is longer than \p iStep in x or in y.
Path Densified(const Path& iPath, double iStep, bool iClosed);

/// Leaves out points nearer than \p iDistance to the one kept before; the first and the last stay.
Path Thinned(const Path& iPath, double iDistance);

#endif
