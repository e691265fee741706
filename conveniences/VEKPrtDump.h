/// \file
/// A drawing as text, for debugging and for tests.
#ifndef VEKPrtDump_H
#define VEKPrtDump_H

#include <ostream>

#include "VEKFont.h"
#include "VEKPixelImage.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtValues.h"
#include "VEKPrtWalk.h"

namespace vekprt {

namespace detail {

// The type that a getter yields; some getters are not const.
template <class Class, class Value>
Value ValueOf(void (Class::*)(Value&) const);
template <class Class, class Value>
Value ValueOf(void (Class::*)(Value&));

// Appends " name=value" to the line of an element.
class DumpLine {
public:
    explicit DumpLine(std::ostream& ioStream) : _stream(ioStream) {}

    template <class Value>
    void Put(const char* iName, const Value& iValue) {
        _stream << ' ' << iName << '=';
        Write(iValue);
    }
    // What getters yield: pairs of a name and a getter.
    template <class Class, class Value, class... Rest>
    void Get(const Class& iObject, const char* iName, void (Class::*iGet)(Value&) const, Rest... iRest) {
        Value value;
        (iObject.*iGet)(value);
        Put(iName, value);
        Get(iObject, iRest...);
    }
    template <class Class>
    void Get(const Class&) {}
    // The same, but nothing for what a new object has.
    template <class Class, class Getter>
    void Changed(Class& ioObject, const char* iName, Getter iGet) {
        Class plain;
        decltype(ValueOf(iGet)) value, initial;
        (ioObject.*iGet)(value);
        (plain.*iGet)(initial);
        if (!(value == initial)) Put(iName, value);
    }
    // The first values of an array, and how many there are where that is more.
    template <class Value>
    void Array(const char* iName, const Value* iValues, long long iCount) {
        constexpr long long shown = 8;
        _stream << ' ' << iName << '=' << (iValues ? "" : "none");
        if (!iValues) return;
        for (long long i = 0; i < iCount && i < shown; ++i)
            _stream << (i ? "," : "") << iValues[i];
        if (iCount > shown) _stream << ",...(" << iCount << ')';
    }
    // " #rrggbb"
    void Colour(const unsigned char (&iComponents)[3]) {
        _stream << " #";
        for (const unsigned component : iComponents)
            _stream << "0123456789abcdef"[component / 16] << "0123456789abcdef"[component % 16];
    }
    void References(const char* iName, VEKBaseUnknown& ioObject) {
        ioObject.AddRef();
        Put(iName, ioObject.Release());
    }

private:
    template <class Value>
    typename std::enable_if<!std::is_enum<Value>::value>::type Write(const Value& iValue) {
        _stream << iValue;
    }
    template <class Value>
    typename std::enable_if<std::is_enum<Value>::value>::type Write(Value iValue) {
        if (const char* const name = NameOf(iValue))
            _stream << name;
        else
            _stream << static_cast<int>(iValue);
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
    ioLine.Changed(ioStroke, "stroke.colour", &S::GetStrokeColourIndex);
    ioLine.Changed(ioStroke, "stroke.transparency", &S::GetStrokeColourTransparency);
    ioLine.Changed(ioStroke, "stroke.type", &S::GetStrokeType);
    float* dashes = nullptr;
    unsigned char count = 0;
    ioStroke.GetStrokeTypePattern(dashes, count);
    if (count > 0) ioLine.Array("stroke.dashes", dashes, count);
    delete[] dashes;
    ioLine.Changed(ioStroke, "stroke.width", &S::GetStrokeWidth);
    ioLine.Changed(ioStroke, "stroke.style", &S::GetStrokeStyle);
    ioLine.Changed(ioStroke, "stroke.cap", &S::GetStrokeCap);
    ioLine.Changed(ioStroke, "stroke.join", &S::GetStrokeJoin);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtFillAttributes& ioFill) {
    using F = VEKPrtFillAttributes;
    ioLine.Changed(ioFill, "fill.style", &F::GetFillStyle);
    ioLine.Changed(ioFill, "fill.rule", &F::GetFillRule);
    ioLine.Changed(ioFill, "fill.colour", &F::GetFillColourIndex);
    ioLine.Changed(ioFill, "fill.transparency", &F::GetFillColourTransparency);
    VEKPixelImage* image = nullptr;
    VEKMathVector2D first, second, none(0.0, 0.0);
    ioFill.GetPattern(image, first, second);
    if (image) ioLine.References("fill.image.references", *image);
    if (!(first == none)) ioLine.Put("fill.first", first);
    if (!(second == none)) ioLine.Put("fill.second", second);
    ioLine.Changed(ioFill, "fill.reference", &F::GetPatternRefPoint);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtTextAttributes& ioText) {
    using T = VEKPrtTextAttributes;
    VEKFont* font = nullptr;
    ioText.GetFont(font);
    if (font) ioLine.Put("text.font", VEKUnicodeString(font->GetFamily()));
    ioLine.Changed(ioText, "text.weight", &T::GetWeight);
    ioLine.Changed(ioText, "text.height", &T::GetHeight);
    ioLine.Changed(ioText, "text.anchor", &T::GetAnchor);
    ioLine.Changed(ioText, "text.slant", &T::GetSlant);
    ioLine.Changed(ioText, "text.direction", &T::GetDirection);
    ioLine.Changed(ioText, "text.spacing", &T::GetExtraSpacing);
    ioLine.Changed(ioText, "text.expansion", &T::GetExpansion);
    ioLine.Changed(ioText, "text.mode", &T::GetWritingMode);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtMarkerAttributes& ioMarker) {
    ioLine.Changed(ioMarker, "marker.style", &VEKPrtMarkerAttributes::GetMarkerStyle);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtGroupAttributes& ioGroup) {
    ioLine.Changed(ioGroup, "group.link", &VEKPrtGroupAttributes::GetLinkURI);
}
// One transform, read back by its position.
template <class Value>
void DumpTransform(DumpLine& ioLine, const VEKPrtTransformAttributes& iTransforms,
                   VEKPrintTransformType iKind, unsigned iIndex,
                   int (VEKPrtTransformAttributes::*iGet)(unsigned, Value&) const) {
    Value value;
    if ((iTransforms.*iGet)(iIndex, value) == 1) ioLine.Put(NameOf(iKind), value);
}
inline void DumpRecord(DumpLine& ioLine, VEKPrtTransformAttributes& ioTransforms) {
    using T = VEKPrtTransformAttributes;
    unsigned count = 0;
    VEKPrintTransformType* kinds = nullptr;
    ioTransforms.GetTransformTab(count, kinds);
    for (unsigned i = 0; kinds && i < count; ++i) {
        switch (kinds[i]) {
        case transformMatrix: DumpTransform(ioLine, ioTransforms, kinds[i], i, &T::GetMatrix); break;
        case transformTranslation:
            DumpTransform(ioLine, ioTransforms, kinds[i], i, &T::GetTranslation);
            break;
        case transformRotation: DumpTransform(ioLine, ioTransforms, kinds[i], i, &T::GetRotation); break;
        case transformScaleX: DumpTransform(ioLine, ioTransforms, kinds[i], i, &T::GetScaleX); break;
        case transformScaleY: DumpTransform(ioLine, ioTransforms, kinds[i], i, &T::GetScaleY); break;
        case transformSkewX: DumpTransform(ioLine, ioTransforms, kinds[i], i, &T::GetSkewX); break;
        case transformSkewY: DumpTransform(ioLine, ioTransforms, kinds[i], i, &T::GetSkewY); break;
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

// The geometry of each class, and the records that it alone has; by what a class calls its own functions.
struct DumpOwn {
    DumpLine& line;

    void operator()(const VEKPrtLineElt& iElement) const {
        line.Get(iElement, "start", &VEKPrtLineElt::GetStartPoint, "end", &VEKPrtLineElt::GetEndPoint);
    }
    void operator()(const VEKPrtRectangleElt& iElement) const {
        VEKMathPoint2D first, second;
        iElement.GetPoints(first, second);
        line.Put("first", first);
        line.Put("second", second);
    }
    void operator()(const VEKPrtCircleElt& iElement) const {
        line.Get(iElement, "centre", &VEKPrtCircleElt::GetCenter, "radius", &VEKPrtCircleElt::GetRadius);
    }
    void operator()(const VEKPrtCircularArcElt& iElement) const {
        using E = VEKPrtCircularArcElt;
        line.Get(iElement, "centre", &E::GetCenter, "radius", &E::GetRadius, "start", &E::GetStartAngle,
                 "end", &E::GetEndAngle);
    }
    void operator()(const VEKPrtEllipseElt& iElement) const {
        using E = VEKPrtEllipseElt;
        line.Get(iElement, "centre", &E::GetCenter, "horz", &E::GetHorzRadius, "vert", &E::GetVertRadius,
                 "slope", &E::GetSlope);
    }
    void operator()(const VEKPrtEllipticalArcElt& iElement) const {
        using E = VEKPrtEllipticalArcElt;
        line.Get(iElement, "centre", &E::GetCenter, "horz", &E::GetHorzRadius, "vert", &E::GetVertRadius,
                 "start", &E::GetStartAngle, "end", &E::GetEndAngle, "slope", &E::GetSlope);
    }
    void operator()(const VEKPrtMarkerElt& iElement) const {
        line.Get(iElement, "point", &VEKPrtMarkerElt::GetPoint, "size", &VEKPrtMarkerElt::GetSize);
        DumpRecordOf(line, iElement, &VEKPrtMarkerElt::GetMarkerAttributes);
    }
    void operator()(const VEKPrtTextElt& iElement) const {
        line.Get(iElement, "position", &VEKPrtTextElt::GetPosition, "text", &VEKPrtTextElt::GetText);
        DumpRecordOf(line, iElement, &VEKPrtTextElt::GetTextAttributes);
    }
    void operator()(const VEKPrtBitmapImageElt& iElement) const {
        Box(iElement);
        line.Get(iElement, "orientation", &VEKPrtBitmapImageElt::GetOrientation);
        VEKPixelImage* image = nullptr;
        iElement.GetPixelImage(image);
        if (image) line.References("image.references", *image);
    }
    void operator()(const VEKPrtPolylineElt& iElement) const { Points(iElement); }
    void operator()(const VEKPrtPolygonElt& iElement) const { Points(iElement); }
    void operator()(const VEKPrtDisjointPolylineElt& iElement) const { Points(iElement); }
    void operator()(const VEKPrtPolyCubicBezierElt& iElement) const { Points(iElement); }
    void operator()(const VEKPrtPolyQuadraticBezierElt& iElement) const { Points(iElement); }
    void operator()(const VEKPrtPolyPolygonElt& iElement) const {
        double* points = nullptr;
        int *counts = nullptr, polygons = 0;
        iElement.GetPoints(points, counts, polygons);
        long long total = 0;
        for (int i = 0; counts && i < polygons; ++i)
            total += counts[i];
        line.Put("polygons", polygons);
        line.Array("counts", counts, polygons);
        line.Array("points", points, 2 * total);
    }
    // The arrays go with order and count only where all three are there.
    void operator()(const VEKPrtNURBSElt& iElement) const {
        int order = 0, count = 0;
        double *points = nullptr, *knots = nullptr, *weights = nullptr;
        float first = 0, second = 0;
        iElement.GetParameters(order, count, points, knots, first, second, weights);
        const bool whole = points && knots && weights;
        line.Put("order", order);
        line.Put("count", count);
        line.Put("first", first);
        line.Put("second", second);
        line.Array("points", whole ? points : nullptr, 2LL * count);
        line.Array("knots", whole ? knots : nullptr, static_cast<long long>(order) + count);
        line.Array("weights", whole ? weights : nullptr, count);
    }
    void operator()(const VEKPrtGroupElt& iElement) const {
        DumpRecordOf(line, iElement, &VEKPrtGroupElt::GetGroupAttributes);
    }
    void operator()(const VEKPrtPatternElt& iElement) const { Box(iElement); }
    void operator()(const VEKPrtSymbolElt& iElement) const { Box(iElement); }
    void operator()(const VEKPrtImageElt& iElement) const {
        Box(iElement);
        line.Changed(iElement, "units", &VEKPrtImageElt::GetUnits);
        line.Changed(iElement, "matrix", &VEKPrtImageElt::GetMatrix);
        VEKPrtColourTable* table = nullptr;
        const_cast<VEKPrtImageElt&>(iElement).GetColourTable(table);
        int count = 0;
        if (table) table->GetColourCount(count);
        line.Put("colours", count);
        for (unsigned i = 0; table && i < static_cast<unsigned>(count); ++i) {
            unsigned char rgb[3] = {};
            table->GetColour(i, rgb[0], rgb[1], rgb[2]);
            line.Colour(rgb);
        }
    }
    void operator()(const VEKPrtClosedFigureElt&) const {}
    void operator()(const VEKPrtClosedFigureRegionElt&) const {}

private:
    template <class Element>
    void Points(const Element& iElement) const {
        double* points = nullptr;
        int count = 0;
        iElement.GetPoints(points, count);
        line.Put("count", count);
        line.Array("points", points, 2LL * count);
    }
    template <class Element>
    void Box(const Element& iElement) const {
        double width = 0, height = 0;
        iElement.GetSize(width, height);
        line.Get(iElement, "origin", &Element::GetOrigin);
        line.Put("width", width);
        line.Put("height", height);
    }
};

// The records that a class may have, by what it has; each second overload is for the classes without.
struct DumpShared {
    DumpLine& line;

    template <class Element>
    void operator()(const Element& iElement) const {
        Stroke(iElement, HasStroke<Element>());
        Fill(iElement, HasFill<Element>());
        Transforms(iElement, HasTransform<Element>());
    }

private:
    template <class Element>
    void Stroke(const Element& iElement, std::true_type) const {
        DumpRecordOf(line, iElement, &Element::GetStrokeAttributes);
    }
    template <class Element>
    void Fill(const Element& iElement, std::true_type) const {
        line.Changed(iElement, "draw", &Element::GetDrawStyle);
        DumpRecordOf(line, iElement, &Element::GetFillAttributes);
    }
    template <class Element>
    void Transforms(const Element& iElement, std::true_type) const {
        DumpRecordOf(line, iElement, &Element::GetTransformAttributes);
    }
    static void Stroke(const VEKPrtGraphicPrimitiveElt&, std::false_type) {}
    static void Fill(const VEKPrtGraphicPrimitiveElt&, std::false_type) {}
    static void Transforms(const VEKPrtGraphicPrimitiveElt&, std::false_type) {}
};

inline void DumpElement(std::ostream& ioStream, VEKPrtGraphicPrimitiveElt& ioElement, int iDepth) {
    for (int i = 0; i < iDepth; ++i)
        ioStream << "  ";
    const VEKPrtGraphicPrimitiveElt& element = ioElement;
    const char* const name = element.IsA();
    ioStream << (name ? name : "?");
    DumpLine line(ioStream);
    line.Changed(element, "id", &VEKPrtGraphicPrimitiveElt::GetID);
    line.References("references", ioElement);
    line.Changed(element, "title", &VEKPrtGraphicPrimitiveElt::GetTitle);
    line.Changed(element, "description", &VEKPrtGraphicPrimitiveElt::GetDescription);
    Visit(element, DumpOwn{line});
    Visit(element, DumpShared{line});
    ioStream << '\n';
}

} // namespace detail

/// Writes a line for each element of \p iDrawing, a model or an element, indented by depth: class,
/// identifier, reference count, geometry, and of the records what differs from a new one.
///
/// Numbers are formatted as the stream says, enumerations by their names where they have one, arrays by their
/// first eight values.  Pixel images are shown by their reference counts, not by their pixels.  Asks of a
/// framework's classes what docs/framework.md says.
inline void Dump(std::ostream& ioStream, const VEKPrtGraphicPrimitiveElt& iDrawing) {
    Walk(const_cast<VEKPrtGraphicPrimitiveElt&>(iDrawing),
         [&](VEKPrtGraphicPrimitiveElt& ioElement, int iDepth) {
             detail::DumpElement(ioStream, ioElement, iDepth);
             return true;
         });
}
/// The pages of a model, one after the other.
inline void Dump(std::ostream& ioStream, const VEKPrtModel& iModel) {
    for (const VEKPrtImageElt& page : ChildrenOf(iModel))
        Dump(ioStream, page);
}

} // namespace vekprt

#endif
