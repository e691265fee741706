// State shared by all that writes one page.
#ifndef Page_H
#define Page_H

#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "Placement.h"
#include "Xml.h"

namespace vekprt::svg {

// Parts of the place that content depends on, besides the grid.
constexpr unsigned usesColours = 1, usesScale = 2, usesArea = 4;

/// An element that is in the document already.
struct Written {
    /// Empty when there was nothing to draw.
    std::string id;
    Place place;
    unsigned uses;

    /// Whether it would be written in the same way there.
    bool Suits(const Place& iPlace) const;
};

/// An element that the page holds more than once.
struct Shared {
    std::vector<Written> written;
    /// Set while the element is being written; id is its name.
    bool isOpen = false;
    std::string id;
};

/// One page.
struct SvgPage {
    XmlWriter& xml;
    Reporter reporter;
    /// What coordinates of the page itself are rounded to.
    double step;
    Place place;

    std::unordered_map<const VEKPrtGraphicPrimitiveElt*, Shared> shared = {};
    /// What the content since the beginning of the innermost shared element depends on.
    unsigned uses = 0;
    /// How many elements may still be written again, and become parts of outlines; true while re-writing.
    long allowance = 0, outlineAllowance = 0;
    bool isAgain = false;
    int nesting = 0;

    std::unordered_set<std::string> ids = {};
    int definitions = 0;
    /// The names of pixel images, each written once, and of the fills made of them.
    std::unordered_map<const VEKPixelImage*, std::string> images = {};
    std::map<std::pair<const VEKPixelImage*, std::string>, std::string> imageFills = {};

    /// Null for an element that the page holds once.
    Shared* SharedOf(const VEKPrtGraphicPrimitiveElt& iElement);
    /// A name for a definition, unique in the document.
    std::string NewId(const char* iKind);
    /// The name of the element in the document, where it is written first; empty where it needs none.
    std::string IdOf(const VEKPrtGraphicPrimitiveElt& iElement);
    /// "#rrggbb"
    std::string Colour(const VEKPrtGraphicPrimitiveElt& iElement, unsigned iIndex);
    /// A reference to an image in the unit square, y down; written here where it is used first.
    std::string ImageReference(const VEKPixelImage& iImage);
};

/// Writes an element as its class demands, or refers to it where it has been written.
void WriteElement(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement);

} // namespace vekprt::svg

#endif
