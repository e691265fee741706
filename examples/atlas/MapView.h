// From rings and lines on the globe to rings and lines on a page.
#ifndef MapView_H
#define MapView_H

#include <vector>

#include "Geometry.h"
#include "Projection.h"

/// A projection at a scale, in a frame on the page.
///
/// Data is stitched at the antimeridian: there longitudes jump from one side to the other, and a ring round a
/// pole does not close.  Each path is first unrolled, then repeated to the left and right, cut to the
/// longitudes and latitudes that the frame needs, projected, and cut to the frame.
class MapView {
public:
    /// The allowance is borrowed; \p iFrame is in page millimetres, \p iScale the 1 in so many.
    MapView(const Projection& iProjection, double iScale, const Box& iFrame, Allowance& ioAllowance);

    /// What the frame shows of a ring; nothing when it is too small to be seen.
    std::vector<Path> Rings(const Path& iRing) const;

    /// What the frame shows of a polyline, without the edges that only data has: along the antimeridian and
    /// round a pole.
    std::vector<Path> Lines(const Path& iLine) const;

    /// Adds what the frame shows of a line within the window's longitudes: taken as it is, however long its
    /// edges.
    void AddLine(const Path& iLine, std::vector<Path>& ioShown) const;

    /// The rim of the map: of the globe on a world map, otherwise of the frame.
    const Path& Outline() const { return _outline; }
    const Box& Frame() const { return _frame; }
    const Box& Window() const { return _window; }

    /// At the centre, along its parallel; a kilometre on the ground.
    double MillimetresPerKilometre() const { return _projection.ScaleAtCentre() * _millimetres; }
    const char* ProjectionName() const { return _projection.Name(); }

private:
    Path ToPage(const Path& iPath, bool iClosed) const;
    /// Copies of the path, turned by whole turns to where the window may show them.
    std::vector<Path> InWindow(const Path& iPath) const;

    const Projection _projection;
    Allowance& _allowance;
    const double _millimetres; // on the page, per projected kilometre
    const Box _frame;
    Box _window;
    Path _outline;
};

#endif
