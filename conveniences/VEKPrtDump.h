// A drawing as text, for debugging and for tests.
#ifndef VEKPrtDump_H
#define VEKPrtDump_H

#include <ostream>

#include "VEKPrtBitmapImageElt.h"
#include "VEKPrtCircleElt.h"
#include "VEKPrtCircularArcElt.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtDisjointPolylineElt.h"
#include "VEKPrtEllipseElt.h"
#include "VEKPrtEllipticalArcElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtMarkerElt.h"
#include "VEKPrtNURBSElt.h"
#include "VEKPrtPolyCubicBezierElt.h"
#include "VEKPrtPolyPolygonElt.h"
#include "VEKPrtPolyQuadraticBezierElt.h"
#include "VEKPrtPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"
#include "VEKPrtTextElt.h"
#include "VEKPrtWalk.h"

namespace vekprt {

/// Writes " name=value" to the line of an element.
class DumpLine {
public:
    explicit DumpLine(std::ostream& ioStream) : _stream(ioStream) {}

    template <class Value>
    void Put(const char* iName, const Value& iValue) {
        _stream << ' ' << iName << '=';
        Write(iValue);
    }
    /// What a getter yields.
    template <class Class, class Value>
    void Get(const char* iName, const Class& iObject, void (Class::*iGet)(Value&) const) {
        Value value;
        (iObject.*iGet)(value);
        Put(iName, value);
    }
    /// The same, but nothing for what a new object has.
    template <class Class, class Value>
    void Changed(const char* iName, const Class& iObject, void (Class::*iGet)(Value&) const) {
        Value value, initial;
        (iObject.*iGet)(value);
        (Class().*iGet)(initial);
        if (value != initial) Put(iName, value);
    }
    template <class Class, class Value>
    void Changed(const char* iName, Class& ioObject, void (Class::*iGet)(Value&)) {
        Value value, initial;
        Class plain;
        (ioObject.*iGet)(value);
        (plain.*iGet)(initial);
        if (value != initial) Put(iName, value);
    }
    /// The first values of an array.
    void Array(const char* iName, const double* iValues, long long iCount) {
        constexpr long long most = 8;
        _stream << ' ' << iName << '=' << (iValues ? "" : "none");
        for (long long i = 0; iValues && i < iCount && i < most; ++i)
            _stream << (i ? "," : "") << iValues[i];
        if (iValues && iCount > most) _stream << ",...";
    }

private:
    template <class Value>
    void Write(const Value& iValue) {
        _stream << iValue;
    }
    void Write(unsigned char iValue) { _stream << static_cast<unsigned>(iValue); }
    void Write(const VEKMathPoint2D& iPoint) { _stream << iPoint.GetX() << ',' << iPoint.GetY(); }
    void Write(const VEKMathVector2D& iVector) { _stream << iVector.GetX() << ',' << iVector.GetY(); }
    void Write(const VEKMath2x2Matrix& iMatrix) {
        _stream << iMatrix.GetCoef(1, 1) << ',' << iMatrix.GetCoef(1, 2) << ',' << iMatrix.GetCoef(2, 1)
                << ',' << iMatrix.GetCoef(2, 2);
    }
    void Write(const VEKPrintLinkURI& iLink) { Write(VEKUnicodeString(iLink.GetURI())); }
    // An element stays on its line: control characters become blanks.
    void Write(const VEKUnicodeString& iText) {
        _stream << '"';
        for (const char* c = iText.ToUtf8(); *c; ++c) {
            if (*c == '"' || *c == '\\') _stream << '\\';
            _stream << (static_cast<unsigned char>(*c) < ' ' ? ' ' : *c);
        }
        _stream << '"';
    }

    std::ostream& _stream;
};

inline void DumpRecord(DumpLine& ioLine, VEKPrtStrokeAttributes& ioStroke) {
    using S = VEKPrtStrokeAttributes;
    ioLine.Changed("stroke.colour", ioStroke, &S::GetStrokeColourIndex);
    ioLine.Changed("stroke.transparency", ioStroke, &S::GetStrokeColourTransparency);
    ioLine.Changed("stroke.type", ioStroke, &S::GetStrokeType);
    float* dashes = nullptr;
    unsigned char count = 0;
    ioStroke.GetStrokeTypePattern(dashes, count);
    if (count > 0) ioLine.Put("stroke.dashes", count);
    delete[] dashes;
    ioLine.Changed("stroke.width", ioStroke, &S::GetStrokeWidth);
    ioLine.Changed("stroke.style", ioStroke, &S::GetStrokeStyle);
    ioLine.Changed("stroke.cap", ioStroke, &S::GetStrokeCap);
    ioLine.Changed("stroke.join", ioStroke, &S::GetStrokeJoin);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtFillAttributes& ioFill) {
    using F = VEKPrtFillAttributes;
    ioLine.Changed("fill.style", ioFill, &F::GetFillStyle);
    ioLine.Changed("fill.rule", ioFill, &F::GetFillRule);
    ioLine.Changed("fill.colour", ioFill, &F::GetFillColourIndex);
    ioLine.Changed("fill.transparency", ioFill, &F::GetFillColourTransparency);
    VEKPixelImage* image = nullptr;
    VEKMathVector2D first, second;
    ioFill.GetPattern(image, first, second);
    if (!image) return;
    ioLine.Put("fill.first", first);
    ioLine.Put("fill.second", second);
    ioLine.Get("fill.reference", ioFill, &F::GetPatternRefPoint);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtTextAttributes& ioText) {
    using T = VEKPrtTextAttributes;
    ioLine.Changed("text.font", ioText, &T::GetFont);
    ioLine.Changed("text.weight", ioText, &T::GetWeight);
    ioLine.Changed("text.height", ioText, &T::GetHeight);
    ioLine.Changed("text.anchor", ioText, &T::GetAnchor);
    ioLine.Changed("text.slant", ioText, &T::GetSlant);
    ioLine.Changed("text.direction", ioText, &T::GetDirection);
    ioLine.Changed("text.spacing", ioText, &T::GetExtraSpacing);
    ioLine.Changed("text.expansion", ioText, &T::GetExpansion);
    ioLine.Changed("text.mode", ioText, &T::GetWritingMode);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtMarkerAttributes& ioMarker) {
    ioLine.Changed("marker.style", ioMarker, &VEKPrtMarkerAttributes::GetMarkerStyle);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtGroupAttributes& ioGroup) {
    ioLine.Changed("group.link", ioGroup, &VEKPrtGroupAttributes::GetLinkURI);
}
// One transform, read back by its position.
template <class Value>
void DumpTransform(DumpLine& ioLine, const char* iName, const VEKPrtTransformAttributes& iTransforms,
                   unsigned iIndex, int (VEKPrtTransformAttributes::*iGet)(unsigned, Value&) const) {
    Value value;
    if ((iTransforms.*iGet)(iIndex, value) == 1) ioLine.Put(iName, value);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtTransformAttributes& ioTransforms) {
    using T = VEKPrtTransformAttributes;
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    ioTransforms.GetTransformTab(count, kinds);
    for (unsigned i = 0; kinds && i < count; ++i) {
        // By number: the names of the kinds are the host framework's.
        switch (static_cast<int>(kinds[i])) {
        case 0: DumpTransform(ioLine, "matrix", ioTransforms, i, &T::GetMatrix); break;
        case 1: DumpTransform(ioLine, "translation", ioTransforms, i, &T::GetTranslation); break;
        case 2: DumpTransform(ioLine, "rotation", ioTransforms, i, &T::GetRotation); break;
        case 3: DumpTransform(ioLine, "scale-x", ioTransforms, i, &T::GetScaleX); break;
        case 4: DumpTransform(ioLine, "scale-y", ioTransforms, i, &T::GetScaleY); break;
        case 5: DumpTransform(ioLine, "skew-x", ioTransforms, i, &T::GetSkewX); break;
        case 6: DumpTransform(ioLine, "skew-y", ioTransforms, i, &T::GetSkewY); break;
        default: ioLine.Put("kind", static_cast<int>(kinds[i]));
        }
    }
}
template <class Element, class Record>
void DumpRecordOf(DumpLine& ioLine, const Element& iElement, void (Element::*iGet)(Record&) const) {
    Record record;
    (iElement.*iGet)(record);
    DumpRecord(ioLine, record);
}

// Those records that a class may have; each second overload is for the classes without it.
template <class Element>
auto DumpStroke(DumpLine& ioLine, const Element& iElement, int)
    -> decltype(DumpRecordOf(ioLine, iElement, &Element::GetStrokeAttributes)) {
    DumpRecordOf(ioLine, iElement, &Element::GetStrokeAttributes);
}
template <class Element>
auto DumpFill(DumpLine& ioLine, const Element& iElement, int)
    -> decltype(DumpRecordOf(ioLine, iElement, &Element::GetFillAttributes)) {
    ioLine.Changed("draw", iElement, &Element::GetDrawStyle);
    DumpRecordOf(ioLine, iElement, &Element::GetFillAttributes);
}
template <class Element>
auto DumpTransforms(DumpLine& ioLine, const Element& iElement, int)
    -> decltype(DumpRecordOf(ioLine, iElement, &Element::GetTransformAttributes)) {
    DumpRecordOf(ioLine, iElement, &Element::GetTransformAttributes);
}
template <class Element>
void DumpStroke(DumpLine&, const Element&, long) {}
template <class Element>
void DumpFill(DumpLine&, const Element&, long) {}
template <class Element>
void DumpTransforms(DumpLine&, const Element&, long) {}

// What each class has besides: its geometry.
inline void DumpOwn(DumpLine& ioLine, VEKPrtLineElt& ioElement) {
    ioLine.Get("start", ioElement, &VEKPrtLineElt::GetStartPoint);
    ioLine.Get("end", ioElement, &VEKPrtLineElt::GetEndPoint);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtRectangleElt& ioElement) {
    VEKMathPoint2D first, second;
    ioElement.GetPoints(first, second);
    ioLine.Put("first", first);
    ioLine.Put("second", second);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtCircleElt& ioElement) {
    ioLine.Get("centre", ioElement, &VEKPrtCircleElt::GetCenter);
    ioLine.Get("radius", ioElement, &VEKPrtCircleElt::GetRadius);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtCircularArcElt& ioElement) {
    ioLine.Get("centre", ioElement, &VEKPrtCircularArcElt::GetCenter);
    ioLine.Get("radius", ioElement, &VEKPrtCircularArcElt::GetRadius);
    ioLine.Get("start", ioElement, &VEKPrtCircularArcElt::GetStartAngle);
    ioLine.Get("end", ioElement, &VEKPrtCircularArcElt::GetEndAngle);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtEllipseElt& ioElement) {
    ioLine.Get("centre", ioElement, &VEKPrtEllipseElt::GetCenter);
    ioLine.Get("horz", ioElement, &VEKPrtEllipseElt::GetHorzRadius);
    ioLine.Get("vert", ioElement, &VEKPrtEllipseElt::GetVertRadius);
    ioLine.Get("slope", ioElement, &VEKPrtEllipseElt::GetSlope);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtEllipticalArcElt& ioElement) {
    ioLine.Get("centre", ioElement, &VEKPrtEllipticalArcElt::GetCenter);
    ioLine.Get("horz", ioElement, &VEKPrtEllipticalArcElt::GetHorzRadius);
    ioLine.Get("vert", ioElement, &VEKPrtEllipticalArcElt::GetVertRadius);
    ioLine.Get("start", ioElement, &VEKPrtEllipticalArcElt::GetStartAngle);
    ioLine.Get("end", ioElement, &VEKPrtEllipticalArcElt::GetEndAngle);
    ioLine.Get("slope", ioElement, &VEKPrtEllipticalArcElt::GetSlope);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtMarkerElt& ioElement) {
    ioLine.Get("point", ioElement, &VEKPrtMarkerElt::GetPoint);
    ioLine.Get("size", ioElement, &VEKPrtMarkerElt::GetSize);
    DumpRecordOf(ioLine, ioElement, &VEKPrtMarkerElt::GetMarkerAttributes);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtTextElt& ioElement) {
    ioLine.Get("position", ioElement, &VEKPrtTextElt::GetPosition);
    ioLine.Get("text", ioElement, &VEKPrtTextElt::GetText);
    DumpRecordOf(ioLine, ioElement, &VEKPrtTextElt::GetTextAttributes);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtBitmapImageElt& ioElement) {
    double width = 0, height = 0;
    ioElement.GetSize(width, height);
    ioLine.Get("origin", ioElement, &VEKPrtBitmapImageElt::GetOrigin);
    ioLine.Put("width", width);
    ioLine.Put("height", height);
    ioLine.Get("orientation", ioElement, &VEKPrtBitmapImageElt::GetOrientation);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtPolyPolygonElt& ioElement) {
    double* points = nullptr;
    int *counts = nullptr, polygons = 0;
    ioElement.GetPoints(points, counts, polygons);
    long long total = 0;
    for (int i = 0; counts && i < polygons; ++i)
        total += counts[i];
    ioLine.Put("polygons", polygons);
    ioLine.Array("points", points, 2 * total);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtNURBSElt& ioElement) {
    int order = 0, count = 0;
    double *points = nullptr, *knots = nullptr, *weights = nullptr;
    float first = 0, second = 0;
    ioElement.GetParameters(order, count, points, knots, first, second, weights);
    ioLine.Put("order", order);
    ioLine.Put("count", count);
    ioLine.Put("first", first);
    ioLine.Put("second", second);
    ioLine.Array("points", points, 2LL * count);
}
template <class Element>
void DumpPoints(DumpLine& ioLine, const Element& iElement) {
    double* points = nullptr;
    int count = 0;
    iElement.GetPoints(points, count);
    ioLine.Put("count", count);
    ioLine.Array("points", points, 2LL * count);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtPolylineElt& ioElement) { DumpPoints(ioLine, ioElement); }
inline void DumpOwn(DumpLine& ioLine, VEKPrtPolygonElt& ioElement) { DumpPoints(ioLine, ioElement); }
inline void DumpOwn(DumpLine& ioLine, VEKPrtDisjointPolylineElt& ioElement) { DumpPoints(ioLine, ioElement); }
inline void DumpOwn(DumpLine& ioLine, VEKPrtPolyCubicBezierElt& ioElement) { DumpPoints(ioLine, ioElement); }
inline void DumpOwn(DumpLine& ioLine, VEKPrtPolyQuadraticBezierElt& ioElement) {
    DumpPoints(ioLine, ioElement);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtGroupElt& ioElement) {
    DumpRecordOf(ioLine, ioElement, &VEKPrtGroupElt::GetGroupAttributes);
}
template <class Element>
void DumpBox(DumpLine& ioLine, const Element& iElement) {
    double width = 0, height = 0;
    iElement.GetSize(width, height);
    ioLine.Get("origin", iElement, &Element::GetOrigin);
    ioLine.Put("width", width);
    ioLine.Put("height", height);
}
inline void DumpOwn(DumpLine& ioLine, VEKPrtPatternElt& ioElement) { DumpBox(ioLine, ioElement); }
inline void DumpOwn(DumpLine& ioLine, VEKPrtSymbolElt& ioElement) { DumpBox(ioLine, ioElement); }
inline void DumpOwn(DumpLine& ioLine, VEKPrtImageElt& ioElement) {
    DumpBox(ioLine, ioElement);
    ioLine.Changed("units", ioElement, &VEKPrtImageElt::GetUnits);
    ioLine.Changed("matrix", ioElement, &VEKPrtImageElt::GetMatrix);
    VEKPrtColourTable* table = nullptr;
    ioElement.GetColourTable(table);
    int colours = 0;
    if (table) table->GetColourCount(colours);
    ioLine.Put("colours", colours);
}
inline void DumpOwn(DumpLine&, VEKPrtClosedFigureElt&) {}
inline void DumpOwn(DumpLine&, VEKPrtClosedFigureRegionElt&) {}

// True if the element is of that class.
template <class Element>
bool DumpAs(DumpLine& ioLine, VEKPrtGraphicPrimitiveElt& ioElement) {
    if (!ioElement.IsAKindOf(Element::ClassName())) return false;
    auto& element = static_cast<Element&>(ioElement);
    DumpOwn(ioLine, element);
    DumpStroke(ioLine, element, 0);
    DumpFill(ioLine, element, 0);
    DumpTransforms(ioLine, element, 0);
    return true;
}
// True as soon as one of the classes fits; none has to.
template <class... Elements>
bool DumpAsOneOf(DumpLine& ioLine, VEKPrtGraphicPrimitiveElt& ioElement) {
    bool done = false;
    const bool each[] = {(done = done || DumpAs<Elements>(ioLine, ioElement))...};
    return each[0] || done;
}

inline void DumpElement(std::ostream& ioStream, VEKPrtGraphicPrimitiveElt& ioElement, int iDepth) {
    for (int i = 0; i < iDepth; ++i)
        ioStream << "  ";
    const char* const name = ioElement.IsA();
    ioStream << (name ? name : "?");
    DumpLine line(ioStream);
    line.Changed("id", ioElement, &VEKPrtGraphicPrimitiveElt::GetID);
    ioElement.AddRef();
    line.Put("references", ioElement.Release());
    line.Changed("title", ioElement, &VEKPrtGraphicPrimitiveElt::GetTitle);
    line.Changed("description", ioElement, &VEKPrtGraphicPrimitiveElt::GetDescription);
    DumpAsOneOf<VEKPrtLineElt, VEKPrtPolylineElt, VEKPrtTextElt, VEKPrtRectangleElt, VEKPrtGroupElt,
                VEKPrtPolygonElt, VEKPrtPolyPolygonElt, VEKPrtCircleElt, VEKPrtCircularArcElt,
                VEKPrtEllipseElt, VEKPrtEllipticalArcElt, VEKPrtMarkerElt, VEKPrtBitmapImageElt,
                VEKPrtDisjointPolylineElt, VEKPrtPolyCubicBezierElt, VEKPrtPolyQuadraticBezierElt,
                VEKPrtNURBSElt, VEKPrtPatternElt, VEKPrtSymbolElt, VEKPrtClosedFigureElt,
                VEKPrtClosedFigureRegionElt, VEKPrtImageElt>(line, ioElement);
    ioStream << '\n';
}

} // namespace vekprt

/// Writes a line for each element of \p ioDrawing, a model or an element, indented by depth: class,
/// identifier, reference count, geometry, and of the records what differs from a new one.
///
/// Numbers are formatted as the stream says, enumerations by their values, long arrays by their first
/// values.  Asks of a framework's strings and links for ToUtf8 and GetURI, too.
template <class Drawing>
void Dump(std::ostream& ioStream, Drawing& ioDrawing) {
    Walk(ioDrawing, [&](VEKPrtGraphicPrimitiveElt& ioElement, int iDepth) {
        vekprt::DumpElement(ioStream, ioElement, iDepth);
        return true;
    });
}

#endif
