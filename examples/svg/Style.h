// What all handlers share: the page being written, and the attributes that records become.
#ifndef Style_H
#define Style_H

#include <ostream>
#include <string>

#include "Path.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"
#include "VEKPrtTransformAttributes.h"
#include "Xml.h"

class VEKPrtColourTable;

struct Box {
    double x, y, width, height;
};

/// One page on its way to SVG.
struct SvgPage {
    XmlWriter& xml;
    std::ostream& warnings;
    VEKPrtColourTable* colours;
    /// How far a drawn curve may be off, in page units.
    double tolerance;
    /// Where a pattern repeats: the box of the page or of the nearest symbol.
    Box area;
    int depth = 0;
    int definitions = 0;

    void Warn(const VEKPrtGraphicPrimitiveElt& iElement, const std::string& iProblem) const;
    /// A name for a definition, unique in the document.
    std::string NewId(const char* iKind) { return iKind + std::to_string(++definitions); }
    /// "#rrggbb"; black for an index that the page's table does not have.
    std::string Colour(const VEKPrtGraphicPrimitiveElt& iElement, unsigned iIndex) const;
};

/// Writes one element: starts it with its identifier, and ends it after title, description and whatever is
/// nested.
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
    /// Stroke and fill as the draw style says; \p iPaint is what PreparePaint gave.
    SvgElement& Paint(VEKPrtDrawStyle iStyle, const VEKPrtStrokeAttributes& iStroke,
                      const VEKPrtFillAttributes& iFill, const std::string& iPaint);
    /// Title and description; nested elements come after it.
    void Content();

private:
    SvgPage& _page;
    const VEKPrtGraphicPrimitiveElt& _element;
    bool _inContent = false;
};

/// What fills an element: a colour, "none", or a reference to a pattern, which is written here and now.
std::string PreparePaint(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, VEKPrtDrawStyle iStyle,
                         const VEKPrtFillAttributes& iFill);

/// The transforms as the value of a `transform` attribute.
std::string TransformList(const VEKPrtTransformAttributes& iTransforms);
std::string Matrix(const Affine& iMap);

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
template <class Element>
VEKPrtDrawStyle DrawStyleOf(const Element& iElement) {
    VEKPrtDrawStyle style = VEKPrtDrawOutline;
    iElement.GetDrawStyle(style);
    return style;
}

#endif
