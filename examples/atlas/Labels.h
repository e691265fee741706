// Finds places for names on a map.
#ifndef Labels_H
#define Labels_H

#include <string>
#include <vector>

#include "Geometry.h"

/// The width of \p iText at font size 1: an estimate for a sans-serif face, on the wide side.
double TextWidth(const std::string& iText);

struct NamedArea {
    const std::string* name;
    const std::vector<Path>* rings;
    double size; // square millimetres
};

struct Label {
    struct Line {
        std::string text;
        Position baseline; // its middle
    };
    std::vector<Line> lines;
    double size = 0.0;
    Path leader; // from the area to the name, where that stands beside it; otherwise empty
};

/// Names for the areas, in font sizes from \p iSmallest to \p iLargest, that overlap neither one another nor
/// the rim of the map.
///
/// Large areas come first.  A name stands in its area, in two lines where that gives larger letters; or else
/// across its edge, as far as that is readable; or else, for an area of some size, on the sea nearby, with a
/// line to it.  An area for whose name there is no room goes without.
std::vector<Label> PlaceLabels(std::vector<NamedArea> iAreas, const Path& iOutline, double iSmallest,
                               double iLargest);

#endif
