// Finds places for names on a map.
#ifndef Labels_H
#define Labels_H

#include <string>
#include <vector>

#include "Geometry.h"
#include "MapView.h"

/// The width of \p iText at font size 1: an estimate for a sans-serif face, on the wide side.
double TextWidth(const std::string& iText);

struct Label {
    std::string text;
    Point baseline; // its middle
    double size = 0.0;
};

/// Sets one name after the other, each only where it fits and overlaps no name set before.
class LabelPlacer {
public:
    LabelPlacer(const MapView& iView, double iSmallest, double iLargest)
        : _view(iView), _smallest(iSmallest), _largest(iLargest) {}

    /// Sets \p iText in the area that \p iRings enclose on the page; false when there is no room.
    bool Place(const std::string& iText, const std::vector<Path>& iRings, Label& oLabel);

private:
    const MapView& _view;
    const double _smallest;
    const double _largest;
    std::vector<Box> _taken;
};

#endif
