// The page on its way to SVG: what all handlers share.
#ifndef Page_H
#define Page_H

#include <initializer_list>
#include <map>
#include <ostream>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "Path.h"
#include "VEKPrtTransformAttributes.h"
#include "Xml.h"

class VEKMetaClass;
class VEKPixelImage;
class VEKPrtColourTable;
class VEKPrtGraphicPrimitiveElt;

namespace vekprt::svg {

struct SvgPage;

/// What to do with an element of one class.
struct Handler {
    void (*write)(SvgPage&, VEKPrtGraphicPrimitiveElt&);
    // Null for a class that cannot be part of an outline, and for one that has no children.
    void (*outline)(SvgPage&, PathData&, VEKPrtGraphicPrimitiveElt&, const Affine&);
    void (*appendChildren)(VEKPrtGraphicPrimitiveElt&, std::vector<VEKPrtGraphicPrimitiveElt*>&);
};

/// A rectangle, in the coordinates that a map takes to those of the page.
struct Area {
    double x, y, width, height;
    Affine map;

    bool IsEmpty() const;
    bool operator==(const Area& iOther) const;
};

/// What an element takes over from its surroundings.
struct Place {
    VEKPrtColourTable* colours;
    /// From the coordinates of the element to those of the page.
    Affine map;
    /// What those coordinates are rounded to.
    Grid grid;
    /// Where a pattern repeats: the box of the page or of the nearest symbol.
    Area area;
};

// What of the place some content has made use of, besides the grid.
constexpr unsigned usesColours = 1, usesScale = 2, usesArea = 4;

/// An element that stands in the document already.
struct Written {
    /// Empty when there was nothing to draw.
    std::string id;
    Place place;
    unsigned uses;

    /// Whether it would not be written differently there.
    bool Suits(const Place& iPlace) const;
};

/// An element that the page holds more than once.
struct Shared {
    std::vector<Written> written;
    /// While it is being written, under this name.
    bool open = false;
    std::string id;
    /// Whether it has been drawn as a part of an outline.
    bool outlined = false;
};

/// One page.
struct SvgPage {
    XmlWriter& xml;
    std::ostream& warnings;
    /// What coordinates of the page itself are rounded to.
    double step;
    Place place;

    std::unordered_map<const VEKMetaClass*, Handler> handlers = {};
    std::unordered_map<const VEKPrtGraphicPrimitiveElt*, Shared> shared = {};
    /// What the content since the beginning of the innermost shared element has made use of.
    unsigned uses = 0;
    /// How many elements may still be written again, and whether that is being done.
    long allowance = 0;
    bool again = false;
    int depth = 0;

    std::unordered_set<std::string> ids = {};
    int definitions = 0;
    /// The fills with an image, by the image and its transform.
    std::map<std::pair<const VEKPixelImage*, std::string>, std::string> imageFills = {};

    void Warn(const VEKPrtGraphicPrimitiveElt& iElement, const std::string& iProblem) const;
    /// Warns when they are not all finite.
    bool AreFinite(const VEKPrtGraphicPrimitiveElt& iElement, std::initializer_list<double> iValues) const;
    /// Null for an element that the page holds once.
    Shared* SharedOf(const VEKPrtGraphicPrimitiveElt& iElement);
    /// A name for a definition, unique in the document.
    std::string NewId(const char* iKind);
    /// The name of the element in the document, where it was written first; empty where it needs none.
    std::string IdOf(const VEKPrtGraphicPrimitiveElt& iElement);
    /// Where a link leads; empty, with a warning, for one that would run a program.
    std::string LinkTo(const VEKPrtGraphicPrimitiveElt& iElement, const std::string& iURI) const;
    /// "#rrggbb"; black for an index that the table does not have.
    std::string Colour(const VEKPrtGraphicPrimitiveElt& iElement, unsigned iIndex);
};

/// Takes the transforms of an element into the page's place, for as long as it lives.  Then the place,
/// whatever has been changed in it, is what it was.
class Placement {
public:
    explicit Placement(SvgPage& ioPage, const VEKPrtTransformAttributes& iTransforms = {});
    ~Placement();
    Placement(const Placement&) = delete;
    Placement& operator=(const Placement&) = delete;

    /// One more, closer to the geometry.
    void Add(const Elementary& iTransform);
    /// The value of the `transform` attribute.
    const std::string& Text() const { return _text; }
    /// What has been added to the transforms of the element.
    const Affine& Added() const { return _added; }

private:
    SvgPage& _page;
    Place _outer;
    Affine _added;
    std::string _text;
};

} // namespace vekprt::svg

#endif
