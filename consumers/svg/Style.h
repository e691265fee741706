// What all handlers share: the page being written, and the attributes that records become.
#ifndef Style_H
#define Style_H

#include <initializer_list>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "Path.h"
#include "VEKPrtChildren.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"
#include "Xml.h"

class VEKPrtColourTable;

/// A rectangle, in the coordinates that a map takes to those of the page.
struct Area {
    double x, y, width, height;
    Affine map;
};

/// One page on its way to SVG.
struct SvgPage {
    XmlWriter& xml;
    std::ostream& warnings;
    VEKPrtColourTable* colours;
    /// How far a drawn curve may be off, in page units.
    double tolerance;
    /// Where a pattern repeats: the box of the page or of the nearest symbol.
    Area area;
    /// From the coordinates of the element being written to those of the page.
    Affine map;
    /// The containers around it.
    std::vector<const VEKPrtGraphicPrimitiveElt*> ancestors;
    /// What stands in the document already.
    std::set<std::string> ids;
    int definitions = 0;

    void Warn(const VEKPrtGraphicPrimitiveElt& iElement, const std::string& iProblem) const;
    // Both warn when something is not a finite number.
    bool AreFinite(const VEKPrtGraphicPrimitiveElt& iElement, std::initializer_list<double> iValues) const;
    bool IsFinite(const VEKPrtGraphicPrimitiveElt& iElement, const PathData& iPath) const;
    /// A name for a definition, unique in the document.
    std::string NewId(const char* iKind);
    /// "#rrggbb"; black for an index that the page's table does not have.
    std::string Colour(const VEKPrtGraphicPrimitiveElt& iElement, unsigned iIndex) const;
};

/// How a closed shape is painted.
struct Appearance {
    VEKPrtDrawStyle style;
    VEKPrtStrokeAttributes stroke;
    VEKPrtFillAttributes fill;
    /// A colour, "none", or a reference to a pattern.
    std::string paint;
};

/// Writes one element: starts it with its identifier (unless another has it already), and ends it after
/// title, description and whatever is nested.  Its transforms hold for what is written until then.
class SvgElement {
public:
    SvgElement(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const char* iName);
    ~SvgElement();
    SvgElement(const SvgElement&) = delete;
    SvgElement& operator=(const SvgElement&) = delete;

    template <class Value>
    SvgElement& Attribute(const char* iName, const Value& iValue) {
        _page.xml.Attribute(iName, iValue);
        return *this;
    }
    /// The transforms, then \p iOwn, closer to the geometry.
    SvgElement& Transform(const VEKPrtTransformAttributes& iTransforms, const std::string& iOwn = {});
    SvgElement& Stroke(const VEKPrtStrokeAttributes& iStroke);
    SvgElement& NoStroke();
    SvgElement& NoFill();
    SvgElement& Paint(const Appearance& iAppearance);
    /// Title and description; nested elements come after it.
    void Content();

private:
    SvgPage& _page;
    const VEKPrtGraphicPrimitiveElt& _element;
    Affine _outer;
    bool _inContent = false;
};

/// What fills an element; a pattern is written here and now.
std::string PreparePaint(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, VEKPrtDrawStyle iStyle,
                         const VEKPrtFillAttributes& iFill);

// Getters as functions: the attribute getters of the elements return through arguments.
template <class Element>
VEKPrtStrokeAttributes StrokeOf(const Element& iElement) {
    VEKPrtStrokeAttributes stroke;
    iElement.GetStrokeAttributes(stroke);
    return stroke;
}
template <class Element>
VEKPrtFillAttributes FillOf(const Element& iElement) {
    VEKPrtFillAttributes fill;
    iElement.GetFillAttributes(fill);
    return fill;
}
template <class Element>
VEKPrtTransformAttributes TransformOf(const Element& iElement) {
    VEKPrtTransformAttributes transform;
    iElement.GetTransformAttributes(transform);
    return transform;
}
/// Meant to be called before the element is started: a pattern comes first.
template <class Element>
Appearance AppearanceOf(SvgPage& ioPage, const Element& iElement) {
    Appearance look = {VEKPrtDrawOutline, StrokeOf(iElement), FillOf(iElement), {}};
    iElement.GetDrawStyle(look.style);
    look.paint = PreparePaint(ioPage, iElement, look.style, look.fill);
    return look;
}

#endif
