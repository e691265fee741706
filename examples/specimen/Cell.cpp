#include "Cell.h"

#include "VEKPrtMarkerElt.h"

VEKPrtStrokeAttributes Stroke(Colour iColour, double iWidth) {
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(iColour);
    stroke.SetStrokeWidth(iWidth);
    return stroke;
}

VEKPrtFillAttributes Fill(Colour iColour) {
    VEKPrtFillAttributes fill;
    fill.SetFillColourIndex(iColour);
    return fill;
}

VEKPrtTransformAttributes Place(double iX, double iY, float iAngle, double iScale) {
    VEKPrtTransformAttributes transform;
    transform.AddTranslation(VEKMathVector2D(iX, iY));
    if (iAngle != 0.0F) transform.AddRotation(iAngle);
    if (iScale != 1.0) transform.AddScaleX(iScale);
    if (iScale != 1.0) transform.AddScaleY(iScale);
    return transform;
}

void Cell::Line(double iX1, double iY1, double iX2, double iY2, const VEKPrtStrokeAttributes& iStroke) const {
    AddStroked(Make<VEKPrtLineElt>(Point(iX1, iY1), Point(iX2, iY2)), iStroke);
}

VEKRef<VEKPrtTextElt> Cell::Text(double iX, double iY, const std::string& iText, double iHeight,
                                 VEKPrintTextAttribute iAnchor) const {
    auto text = Make<VEKPrtTextElt>(Point(iX, iY), VEKUnicodeString(iText.c_str()));
    VEKPrtTextAttributes attributes;
    attributes.SetFont(fonts.sans.get());
    attributes.SetHeight(iHeight);
    attributes.SetAnchor(iAnchor);
    text->SetTextAttributes(attributes);
    AddPainted(text, ink, ink, VEKPrtDrawInterior, 0.15);
    return text;
}

void Cell::Mark(double iX, double iY) const {
    const auto mark = Make<VEKPrtMarkerElt>(Point(iX, iY), 1.6);
    VEKPrtMarkerAttributes attributes;
    attributes.SetMarkerStyle(VEKPrintMarkerCross);
    mark->SetMarkerAttributes(attributes);
    AddStroked(mark, Stroke(red, 0.15));
}
