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

using vekprt::Make;
using vekprt::VEKRef;

class VEKFont;

/// A line by the index of its colour in the page's table and its width in page units.
struct Pen {
    unsigned colour = 0;
    double width = 0.0;
};

struct TextStyle {
    VEKFont* font = nullptr;
    double size = 0.0;
    unsigned colour = 0;
    VEKPrintTextAttribute anchor = VEKPrintTextAnchorBaselineLeft;
    double spacing = 0.0;
};

VEKRef<VEKPrtPolyPolygonElt> MakeArea(const std::vector<Path>& iRings, unsigned iColour);
VEKRef<VEKPrtPolylineElt> MakeLine(const Path& iLine, const Pen& iPen);
VEKRef<VEKPrtLineElt> MakeSegment(const Position& iFrom, const Position& iTo, const Pen& iPen);
VEKRef<VEKPrtRectangleElt> MakeFilledBox(const Box& iBox, unsigned iColour);
VEKRef<VEKPrtRectangleElt> MakeOutlinedBox(const Box& iBox, const Pen& iPen);
VEKRef<VEKPrtTextElt> MakeText(const Position& iPosition, const std::string& iText, const TextStyle& iStyle);

#endif
