// Outlines as moves, lines and curves.
#ifndef Path_H
#define Path_H

#include <initializer_list>
#include <string>
#include <vector>

#include "Affine.h"

namespace vekprt::drawing {

/// Segments and their points; every point passes through the map.
class Path {
public:
    void SetMap(const Affine& iMap) { _map = iMap; }
    const Affine& Map() const { return _map; }
    /// One of M, L, Q, C and Z for each segment.
    const std::string& Commands() const { return _commands; }
    /// Of all segments: one for M and L, two for Q, three for C, none for Z.
    const std::vector<VEKMathPoint2D>& Points() const { return _points; }

    void MoveTo(double iX, double iY) { Add('M', {_map(iX, iY)}); }
    void LineTo(double iX, double iY) { Add('L', {_map(iX, iY)}); }
    // One segment; its points are pairs: x, y.
    void QuadraticTo(const double* iTwoPoints);
    void CubicTo(const double* iThreePoints);
    void Close();

    /// An elliptical arc from one parameter (in degrees) to a greater one, as cubic curves.
    void Arc(const VEKMathPoint2D& iCentre, double iRadiusX, double iRadiusY, double iSlope, double iStart,
             double iEnd);

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
