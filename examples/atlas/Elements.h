// Short ways to make elements of a drawing.
#ifndef Elements_H
#define Elements_H

#include <string>
#include <vector>

#include "Geometry.h"
#include "VEKPrintTextAttribute.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtPolyPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"
#include "VEKPrtTextElt.h"
#include "VEKRef.h"

class VEKFont;

/// A line by the index of its colour in the page's table and its width in page units.
struct Pen {
    unsigned int colour = 0;
    double width = 0.0;
};

struct TextStyle {
    VEKFont* font = nullptr;
    double size = 0.0;
    unsigned int colour = 0;
    VEKPrintTextAttribute anchor = VEKPrintTextAnchorBaselineLeft;
    VEKPrintTextAttribute weight = VEKPrintTextWeightRegular;
    double spacing = 0.0;
};

VEKRef<VEKPrtPolyPolygonElt> MakeArea(const std::vector<Path>& iRings, unsigned int iColour);
VEKRef<VEKPrtPolylineElt> MakeLine(const Path& iLine, const Pen& iPen);
VEKRef<VEKPrtPolylineElt> MakeClosedLine(const Path& iRing, const Pen& iPen);
VEKRef<VEKPrtLineElt> MakeSegment(const Point& iFrom, const Point& iTo, const Pen& iPen);
VEKRef<VEKPrtRectangleElt> MakeFilledBox(const Box& iBox, unsigned int iColour);
VEKRef<VEKPrtRectangleElt> MakeOutlinedBox(const Box& iBox, const Pen& iPen);
VEKRef<VEKPrtTextElt> MakeText(const Point& iPosition, const std::string& iText, const TextStyle& iStyle);

#endif
