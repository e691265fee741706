// Outlines as moves, lines and curves.
#ifndef Path_H
#define Path_H

#include <initializer_list>
#include <string>
#include <vector>

#include "Affine.h"

namespace vekprt::drawing {

/// An ellipse, or an arc of one from one parameter (in degrees) to a greater one.
struct EllipseShape {
    VEKMathPoint2D centre = VEKMathPoint2D(0.0, 0.0);
    double radiusX = 0, radiusY = 0;
    double slope = 0, start = 0, end = 360;
};

/// Segments and their points; every point passes through the map.  A pen, see Outliner.
class Path {
public:
    void SetMap(const Affine& iMap) { _map = iMap; }
    const Affine& Map() const { return _map; }
    /// One of M, L, Q, C and Z for each segment.
    const std::string& Commands() const { return _commands; }
    /// Of all segments, PointCount for each.
    const std::vector<VEKMathPoint2D>& Points() const { return _points; }

    static int PointCount(char iCommand) {
        return iCommand == 'Z' ? 0 : iCommand == 'Q' ? 2 : iCommand == 'C' ? 3 : 1;
    }

    void MoveTo(const VEKMathPoint2D& iTo) { Add('M', {iTo}); }
    void LineTo(const VEKMathPoint2D& iTo) { Add('L', {iTo}); }
    void QuadraticTo(const VEKMathPoint2D& iHandle, const VEKMathPoint2D& iTo) { Add('Q', {iHandle, iTo}); }
    void CubicTo(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond, const VEKMathPoint2D& iTo) {
        Add('C', {iFirst, iSecond, iTo});
    }
    void Close();
    void Rectangle(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond);
    /// As cubic curves.
    void Arc(const EllipseShape& iShape);

    /// Draws the same with another pen.
    template <class Pen>
    void DrawWith(Pen& ioPen) const {
        const VEKMathPoint2D* p = _points.data();
        for (const char command : _commands) {
            switch (command) {
            case 'M': ioPen.MoveTo(p[0]); break;
            case 'L': ioPen.LineTo(p[0]); break;
            case 'Q': ioPen.QuadraticTo(p[0], p[1]); break;
            case 'C': ioPen.CubicTo(p[0], p[1], p[2]); break;
            default: ioPen.Close();
            }
            p += PointCount(command);
        }
    }

    /// Appends the next primitive of an outline.  One that ends at the current end of the outline, but does
    /// not begin there, is reversed; a line is drawn to one that does neither.
    void Join(Path iPrimitive);

private:
    void Add(char iCommand, std::initializer_list<VEKMathPoint2D> iPoints);
    bool IsOpen() const { return !_commands.empty() && _commands.back() != 'Z'; }

    Affine _map;
    std::string _commands;
    std::vector<VEKMathPoint2D> _points;
};

/// The end of a counter-clockwise arc as an angle above its start, at most one turn.
double ArcEnd(double iStart, double iEnd);

} // namespace vekprt::drawing

#endif
