// Elements of the document, and the attributes that records become.
#ifndef Element_H
#define Element_H

#include <string>

#include "Page.h"

namespace vekprt::svg {

/// How an element is painted, and what its inside is filled with.
struct Paint {
    Look look;
    /// A colour, "none", a reference to a pattern; empty for what has no inside.
    std::string inside;
};
/// Meant to be called before the element is started: a pattern comes first.  \p iInner places the geometry in
/// the coordinates of the element.
Paint PaintOf(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, Look iLook,
              const Affine& iInner = {});

/// Writes one element.
class SvgElement {
public:
    /// Starts it, with its identifier and its placement.
    SvgElement(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement, const char* iName,
               const Placement& iPlacement);

    SvgElement& Attribute(const char* iName, const std::string& iValue);
    /// A coordinate or a length.
    SvgElement& Attribute(const char* iName, double iValue);
    SvgElement& Attributes(const Paint& iPaint);
    /// Title and description; nested elements come after it.
    void Content();
    /// Ends it, after title and description.
    void End();

private:
    void StrokeAttributes(const Stroke& iStroke);

    SvgPage& _page;
    const VEKPrtGraphicPrimitiveElt& _element;
    bool _isInContent = false;
};

} // namespace vekprt::svg

#endif
