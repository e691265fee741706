// One handler per element class.
#ifndef Handlers_H
#define Handlers_H

#include "VEKPrtChildren.h"

class PathData;
class VEKPrtBitmapImageElt;
class VEKPrtCircleElt;
class VEKPrtCircularArcElt;
class VEKPrtClosedFigureElt;
class VEKPrtClosedFigureRegionElt;
class VEKPrtDisjointPolylineElt;
class VEKPrtEllipseElt;
class VEKPrtEllipticalArcElt;
class VEKPrtGraphicPrimitiveElt;
class VEKPrtGroupElt;
class VEKPrtImageElt;
class VEKPrtLineElt;
class VEKPrtMarkerElt;
class VEKPrtNURBSElt;
class VEKPrtPatternElt;
class VEKPrtPolyCubicBezierElt;
class VEKPrtPolyPolygonElt;
class VEKPrtPolyQuadraticBezierElt;
class VEKPrtPolygonElt;
class VEKPrtPolylineElt;
class VEKPrtRectangleElt;
class VEKPrtSymbolElt;
class VEKPrtTextElt;
struct Affine;
struct SvgPage;

/// Writes an element by the handler of its class; a class without one is warned of.
void WriteElement(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement);
void WriteChildren(SvgPage& ioPage, const VEKPrtMembers<VEKPrtGraphicPrimitiveElt>& iChildren);

// The elements are not const because some of their getters are not.
void Write(SvgPage& ioPage, VEKPrtBitmapImageElt& ioBitmap);
void Write(SvgPage& ioPage, VEKPrtCircleElt& ioCircle);
void Write(SvgPage& ioPage, VEKPrtCircularArcElt& ioArc);
void Write(SvgPage& ioPage, VEKPrtClosedFigureElt& ioFigure);
void Write(SvgPage& ioPage, VEKPrtClosedFigureRegionElt& ioRegion);
void Write(SvgPage& ioPage, VEKPrtDisjointPolylineElt& ioSegments);
void Write(SvgPage& ioPage, VEKPrtEllipseElt& ioEllipse);
void Write(SvgPage& ioPage, VEKPrtEllipticalArcElt& ioArc);
void Write(SvgPage& ioPage, VEKPrtGroupElt& ioGroup);
void Write(SvgPage& ioPage, VEKPrtImageElt& ioNestedImage);
void Write(SvgPage& ioPage, VEKPrtLineElt& ioLine);
void Write(SvgPage& ioPage, VEKPrtMarkerElt& ioMarker);
void Write(SvgPage& ioPage, VEKPrtNURBSElt& ioCurve);
void Write(SvgPage& ioPage, VEKPrtPatternElt& ioPattern);
void Write(SvgPage& ioPage, VEKPrtPolyCubicBezierElt& ioCurve);
void Write(SvgPage& ioPage, VEKPrtPolyPolygonElt& ioPolygons);
void Write(SvgPage& ioPage, VEKPrtPolyQuadraticBezierElt& ioCurve);
void Write(SvgPage& ioPage, VEKPrtPolygonElt& ioPolygon);
void Write(SvgPage& ioPage, VEKPrtPolylineElt& ioPolyline);
void Write(SvgPage& ioPage, VEKPrtRectangleElt& ioRectangle);
void Write(SvgPage& ioPage, VEKPrtSymbolElt& ioSymbol);
void Write(SvgPage& ioPage, VEKPrtTextElt& ioText);

/// An element of the base class itself: it has nothing to draw.
void WriteBare(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioBare);

/// Appends an element, seen through \p iMap, to the outline of a region.
void AppendToRegion(SvgPage& ioPage, PathData& ioPath, VEKPrtGraphicPrimitiveElt& ioElement,
                    const Affine& iMap);

// The geometry of those classes that can be part of an outline, without their transforms.
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtCircleElt& iCircle);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtCircularArcElt& iArc);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtDisjointPolylineElt& iSegments);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtEllipseElt& iEllipse);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtEllipticalArcElt& iArc);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtLineElt& iLine);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtNURBSElt& iCurve);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolyCubicBezierElt& iCurve);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolyPolygonElt& iPolygons);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolyQuadraticBezierElt& iCurve);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolygonElt& iPolygon);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtPolylineElt& iPolyline);
void Outline(SvgPage& ioPage, PathData& ioPath, const VEKPrtRectangleElt& iRectangle);

#endif
