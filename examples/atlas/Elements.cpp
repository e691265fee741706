#include "Elements.h"

#include <cmath>

namespace {

// Page units are millimetres: more than micrometres would only lengthen the files made of a page.
double Rounded(double iCoordinate) { return std::round(iCoordinate * 1000.0) / 1000.0; }

VEKMathPoint2D PointOf(const Position& iPosition) { return {Rounded(iPosition.x), Rounded(iPosition.y)}; }

void Append(const Path& iPath, std::vector<double>& ioCoordinates) {
    for (const Position& position : iPath) {
        ioCoordinates.push_back(Rounded(position.x));
        ioCoordinates.push_back(Rounded(position.y));
    }
}

template <class Element>
void SetFill(const VEKRef<Element>& ioElement, unsigned iColour) {
    VEKPrtFillAttributes fill;
    fill.SetFillStyle(VEKPrtFillSolid);
    // Holes are holes whichever way round they run.
    fill.SetFillRule(VEKPrtFillEvenOdd);
    fill.SetFillColourIndex(iColour);
    ioElement->SetFillAttributes(fill);
    ioElement->SetDrawStyle(VEKPrtDrawInterior);
}

// Round ends make arcs that meet at a point look like one line.
template <class Element>
void SetStroke(const VEKRef<Element>& ioElement, const Pen& iPen, bool iIsRound = false) {
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(iPen.colour);
    stroke.SetStrokeWidth(Rounded(iPen.width));
    if (iIsRound) stroke.SetStrokeCap(VEKPrintLineCapRound);
    if (iIsRound) stroke.SetStrokeJoin(VEKPrintLineJoinRound);
    ioElement->SetStrokeAttributes(stroke);
}

VEKRef<VEKPrtRectangleElt> MakeBox(const Box& iBox) {
    return Make<VEKPrtRectangleElt>(PointOf({iBox.minX, iBox.minY}), PointOf({iBox.maxX, iBox.maxY}));
}

} // namespace

VEKRef<VEKPrtPolyPolygonElt> MakeArea(const std::vector<Path>& iRings, unsigned iColour) {
    std::vector<double> coordinates;
    std::vector<int> counts;
    for (const Path& ring : iRings) {
        Append(ring, coordinates);
        counts.push_back(static_cast<int>(ring.size()));
    }
    auto area =
        Make<VEKPrtPolyPolygonElt>(coordinates.data(), counts.data(), static_cast<int>(counts.size()));
    SetFill(area, iColour);
    return area;
}

VEKRef<VEKPrtPolylineElt> MakeLine(const Path& iLine, const Pen& iPen) {
    std::vector<double> coordinates;
    Append(iLine, coordinates);
    auto line = Make<VEKPrtPolylineElt>(coordinates.data(), static_cast<int>(iLine.size()));
    SetStroke(line, iPen, true);
    return line;
}

VEKRef<VEKPrtLineElt> MakeSegment(const Position& iFrom, const Position& iTo, const Pen& iPen) {
    auto segment = Make<VEKPrtLineElt>(PointOf(iFrom), PointOf(iTo));
    SetStroke(segment, iPen);
    return segment;
}

VEKRef<VEKPrtRectangleElt> MakeFilledBox(const Box& iBox, unsigned iColour) {
    auto box = MakeBox(iBox);
    SetFill(box, iColour);
    return box;
}

VEKRef<VEKPrtRectangleElt> MakeOutlinedBox(const Box& iBox, const Pen& iPen) {
    auto box = MakeBox(iBox);
    box->SetDrawStyle(VEKPrtDrawOutline);
    SetStroke(box, iPen);
    return box;
}

VEKRef<VEKPrtTextElt> MakeText(const Position& iPosition, const std::string& iText, const TextStyle& iStyle) {
    auto text = Make<VEKPrtTextElt>(PointOf(iPosition), VEKUnicodeString(iText.c_str()));
    VEKPrtTextAttributes attributes;
    attributes.SetFont(iStyle.font);
    attributes.SetHeight(Rounded(iStyle.size));
    attributes.SetAnchor(iStyle.anchor);
    attributes.SetExtraSpacing(iStyle.spacing);
    text->SetTextAttributes(attributes);
    SetFill(text, iStyle.colour);
    return text;
}
