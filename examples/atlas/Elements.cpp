#include "Elements.h"

#include <cmath>

namespace {

/// Page units are millimetres: more than micrometres would only lengthen the files made of a page.
double Rounded(double iCoordinate) { return std::round(iCoordinate * 1000.0) / 1000.0; }

std::vector<double> Coordinates(const Path& iPath) {
    std::vector<double> coordinates;
    coordinates.reserve(2 * iPath.size());
    for (const Point& point : iPath) {
        coordinates.push_back(Rounded(point.x));
        coordinates.push_back(Rounded(point.y));
    }
    return coordinates;
}

VEKMathPoint2D PointOf(const Point& iPoint) { return {Rounded(iPoint.x), Rounded(iPoint.y)}; }

VEKPrtFillAttributes FillOf(unsigned int iColour) {
    VEKPrtFillAttributes fill;
    fill.SetFillStyle(VEKPrtFillSolid);
    // Holes are holes whichever way round they run.
    fill.SetFillRule(VEKPrtFillEvenOdd);
    fill.SetFillColourIndex(iColour);
    return fill;
}

VEKPrtStrokeAttributes StrokeOf(const Pen& iPen) {
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(iPen.colour);
    stroke.SetStrokeWidth(iPen.width);
    return stroke;
}

/// Round ends make arcs that meet at a point look like one line.
VEKPrtStrokeAttributes RoundStrokeOf(const Pen& iPen) {
    VEKPrtStrokeAttributes stroke = StrokeOf(iPen);
    stroke.SetStrokeCap(VEKPrintLineCapRound);
    stroke.SetStrokeJoin(VEKPrintLineJoinRound);
    return stroke;
}

} // namespace

VEKRef<VEKPrtPolyPolygonElt> MakeArea(const std::vector<Path>& iRings, unsigned int iColour) {
    std::vector<double> coordinates;
    std::vector<int> counts;
    for (const Path& ring : iRings) {
        const std::vector<double> part = Coordinates(ring);
        coordinates.insert(coordinates.end(), part.begin(), part.end());
        counts.push_back(static_cast<int>(ring.size()));
    }
    auto area =
        Make<VEKPrtPolyPolygonElt>(coordinates.data(), counts.data(), static_cast<int>(counts.size()));
    area->SetDrawStyle(VEKPrtDrawInterior);
    area->SetFillAttributes(FillOf(iColour));
    return area;
}

VEKRef<VEKPrtPolylineElt> MakeLine(const Path& iLine, const Pen& iPen) {
    const std::vector<double> coordinates = Coordinates(iLine);
    auto line = Make<VEKPrtPolylineElt>(coordinates.data(), static_cast<int>(iLine.size()));
    line->SetStrokeAttributes(RoundStrokeOf(iPen));
    return line;
}

VEKRef<VEKPrtPolylineElt> MakeClosedLine(const Path& iRing, const Pen& iPen) {
    Path line = iRing;
    if (!iRing.empty()) line.push_back(iRing.front());
    return MakeLine(line, iPen);
}

VEKRef<VEKPrtLineElt> MakeSegment(const Point& iFrom, const Point& iTo, const Pen& iPen) {
    auto segment = Make<VEKPrtLineElt>(PointOf(iFrom), PointOf(iTo));
    segment->SetStrokeAttributes(StrokeOf(iPen));
    return segment;
}

VEKRef<VEKPrtRectangleElt> MakeFilledBox(const Box& iBox, unsigned int iColour) {
    auto box = Make<VEKPrtRectangleElt>(PointOf({iBox.minX, iBox.minY}), PointOf({iBox.maxX, iBox.maxY}));
    box->SetDrawStyle(VEKPrtDrawInterior);
    box->SetFillAttributes(FillOf(iColour));
    return box;
}

VEKRef<VEKPrtRectangleElt> MakeOutlinedBox(const Box& iBox, const Pen& iPen) {
    auto box = Make<VEKPrtRectangleElt>(PointOf({iBox.minX, iBox.minY}), PointOf({iBox.maxX, iBox.maxY}));
    box->SetDrawStyle(VEKPrtDrawOutline);
    box->SetStrokeAttributes(StrokeOf(iPen));
    return box;
}

VEKRef<VEKPrtTextElt> MakeText(const Point& iPosition, const std::string& iText, const TextStyle& iStyle) {
    auto text = Make<VEKPrtTextElt>(PointOf(iPosition), VEKUnicodeString(iText.c_str()));
    VEKPrtTextAttributes attributes;
    attributes.SetFont(iStyle.font);
    attributes.SetHeight(Rounded(iStyle.size));
    attributes.SetAnchor(iStyle.anchor);
    attributes.SetWeight(iStyle.weight);
    attributes.SetExtraSpacing(iStyle.spacing);
    text->SetTextAttributes(attributes);
    text->SetDrawStyle(VEKPrtDrawInterior);
    text->SetFillAttributes(FillOf(iStyle.colour));
    return text;
}
