// Elements of the document, and the attributes that records become.
#ifndef Style_H
#define Style_H

#include <string>

#include "Page.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtStrokeAttributes.h"

namespace vekprt::svg {

/// How a closed shape is painted.  Not const where it is used: some getters of records are not.
struct Appearance {
    VEKPrtDrawStyle style;
    VEKPrtStrokeAttributes stroke;
    VEKPrtFillAttributes fill;
    /// A colour, "none", a reference to a pattern; empty for what has no inside.
    std::string paint;
};

/// Writes one element: starts it with its identifier and its placement, and ends it after title, description
/// and whatever is nested.
class SvgElement {
public:
    SvgElement(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const char* iName,
               const Placement& iPlacement);
    ~SvgElement();
    SvgElement(const SvgElement&) = delete;
    SvgElement& operator=(const SvgElement&) = delete;

    SvgElement& Attribute(const char* iName, const std::string& iValue);
    /// A coordinate or a length.
    SvgElement& Attribute(const char* iName, double iValue);
    void Paint(Appearance& ioAppearance);
    /// Title and description; nested elements come after it.
    void Content();

private:
    void Stroke(VEKPrtStrokeAttributes& ioStroke);

    SvgPage& _page;
    const VEKPrtGraphicPrimitiveElt& _element;
    bool _inContent = false;
};

// Both leave out, with a warning, what is not finite.
/// A shape that SVG has itself, by its measures.
void WriteShape(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const char* iName,
                const Placement& iPlacement, std::initializer_list<std::pair<const char*, double>> iMeasures,
                Appearance iAppearance);
void WritePath(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const Placement& iPlacement,
               const PathData& iPath, Appearance iAppearance);

/// What fills an element; a pattern is written here and now.
std::string PreparePaint(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, VEKPrtDrawStyle iStyle,
                         VEKPrtFillAttributes& ioFill, const Affine& iInner);

/// The image as PNG in a data URI; empty for one without pixels, and when encoding fails.
std::string PngDataUri(const VEKPixelImage& iImage);

// Getters as functions: the attribute getters of the elements return through arguments.
template <class Element>
VEKPrtTransformAttributes TransformOf(const Element& iElement) {
    VEKPrtTransformAttributes transform;
    iElement.GetTransformAttributes(transform);
    return transform;
}
template <class Element>
VEKPrtStrokeAttributes StrokeOf(const Element& iElement) {
    VEKPrtStrokeAttributes stroke;
    iElement.GetStrokeAttributes(stroke);
    return stroke;
}
// The second is for the classes that have no fill.
template <class Element>
auto GetFill(const Element& iElement, Appearance& oLook, int)
    -> decltype(iElement.GetFillAttributes(oLook.fill)) {
    iElement.GetDrawStyle(oLook.style);
    iElement.GetFillAttributes(oLook.fill);
}
template <class Element>
void GetFill(const Element&, Appearance&, long) {}

/// Meant to be called before the element is started: a pattern comes first.  \p iInner is what places the
/// geometry in the coordinates of the element.
template <class Element>
Appearance AppearanceOf(SvgPage& ioPage, const Element& iElement, const Affine& iInner = {}) {
    Appearance look = {VEKPrtDrawOutline, StrokeOf(iElement), {}, {}};
    GetFill(iElement, look, 0);
    look.paint = PreparePaint(ioPage, iElement, look.style, look.fill, iInner);
    return look;
}

} // namespace vekprt::svg

#endif
