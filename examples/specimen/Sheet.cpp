#include "Sheet.h"

#include "VEKPrtMarkerElt.h"

VEKPrtStrokeAttributes Stroke(unsigned iColour, double iWidth) {
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(iColour);
    stroke.SetStrokeWidth(iWidth);
    return stroke;
}

VEKPrtFillAttributes Fill(unsigned iColour) {
    VEKPrtFillAttributes fill;
    fill.SetFillColourIndex(iColour);
    return fill;
}

VEKRef<VEKPrtLineElt> Cell::Line(double iX1, double iY1, double iX2, double iY2, unsigned iColour,
                                 double iWidth) const {
    auto line = Make<VEKPrtLineElt>(VEKMathPoint2D(iX1, iY1), VEKMathPoint2D(iX2, iY2));
    AddStroked(line, iColour, iWidth);
    return line;
}

VEKRef<VEKPrtTextElt> Cell::Text(double iX, double iY, const char* iText, double iHeight,
                                 VEKPrintTextAttribute iAnchor) const {
    auto text = Make<VEKPrtTextElt>(VEKMathPoint2D(iX, iY), VEKUnicodeString(iText));
    VEKPrtTextAttributes attributes;
    attributes.SetFont(fonts.sans.get());
    attributes.SetHeight(iHeight);
    attributes.SetAnchor(iAnchor);
    text->SetTextAttributes(attributes);
    AddPainted(text, palette.ink, palette.ink, VEKPrtDrawInterior, 0.15);
    return text;
}

void Cell::Mark(double iX, double iY) const {
    const auto mark = Make<VEKPrtMarkerElt>(VEKMathPoint2D(iX, iY), 1.6);
    VEKPrtMarkerAttributes attributes;
    attributes.SetMarkerStyle(VEKPrintMarkerCross);
    mark->SetMarkerAttributes(attributes);
    AddStroked(mark, palette.red, 0.15);
}
