// Attribute records and boxes as plain values, read in the one way that docs/drawing.md describes.
#ifndef Records_H
#define Records_H

#include <string>
#include <string_view>
#include <vector>

#include "Affine.h"
#include "Reporter.h"
#include "VEKPrtElements.h"

class VEKPrtColourTable;

namespace vekprt::drawing {

struct Rgb {
    unsigned char red = 0, green = 0, blue = 0;
};
/// Black, with a warning, for an index that the table does not have.
Rgb ColourOf(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement, VEKPrtColourTable* iTable,
             unsigned iIndex);

enum class Cap { Butt, Round, Square };
enum class Join { Mitre, Round, Bevel };
constexpr double mitreLimit = 4.0;

struct Stroke {
    /// False, with a warning, for a width below 0 or out of range.
    bool isDrawn = false;
    /// The width and the dashes are those of the page, whatever the transforms.
    bool isFixed = false;
    unsigned colour = 0;
    /// 255 is opaque.
    unsigned char opacity = 255;
    double width = 0;
    Cap cap = Cap::Butt;
    Join join = Join::Mitre;
    /// Empty for a solid line.
    std::vector<double> dashes = {};

    /// What width and dashes are to be divided by where \p iMap leads to the page.
    double DivisorIn(const Affine& iMap) const;
};

struct Fill {
    enum Kind { None, Colour, Image };
    Kind kind = None;
    bool isEvenOdd = false;
    unsigned colour = 0;
    unsigned char opacity = 255;
    /// Borrowed from the element.
    VEKPixelImage* image = nullptr;
    /// Takes the unit square to a tile of the image, the lower left corner to the reference point.
    Affine tile = {};
};

/// How an element is painted: the inside first, then the outline.
struct Look {
    Stroke stroke;
    Fill fill;
};

Stroke ReadStroke(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement,
                  VEKPrtStrokeAttributes& ioRecord);
Fill ReadFill(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement,
              VEKPrtFillAttributes& ioRecord);

template <class Element>
Stroke StrokeOf(const Reporter& iReporter, const Element& iElement) {
    VEKPrtStrokeAttributes record;
    iElement.GetStrokeAttributes(record);
    return ReadStroke(iReporter, iElement, record);
}
/// Of an element without a fill, the outline alone.
template <class Element>
Look LookOf(const Reporter& iReporter, const Element& iElement) {
    Look look;
    VEKPrtDrawStyle style = VEKPrtDrawOutline;
    if constexpr (HasFill<Element>::value) {
        iElement.GetDrawStyle(style);
        VEKPrtFillAttributes record;
        iElement.GetFillAttributes(record);
        if (style != VEKPrtDrawOutline) look.fill = ReadFill(iReporter, iElement, record);
    }
    if (style != VEKPrtDrawInterior) look.stroke = StrokeOf(iReporter, iElement);
    return look;
}
VEKPrintMarkerAttribute StyleOf(const VEKPrtMarkerElt& iMarker);
/// The disc is the one marker that is filled: as it is stroked.
Look LookOf(const Reporter& iReporter, const VEKPrtMarkerElt& iMarker);

template <class Element>
std::vector<Elementary> PlacementOf(const Element& iElement) {
    VEKPrtTransformAttributes record;
    iElement.GetTransformAttributes(record);
    return TransformsOf(record);
}
/// The matrix of a page, whose centre is the origin; nothing for a matrix that does nothing.
std::vector<Elementary> PlacementOf(const VEKPrtImageElt& iPage);

/// A rectangle by its lower left corner.
struct Box {
    double x = 0, y = 0, width = 0, height = 0;

    bool IsEmpty() const;
    bool operator==(const Box& iOther) const;
};
template <class Element>
Box BoxOf(const Element& iElement) {
    VEKMathPoint2D origin(0.0, 0.0);
    Box box;
    iElement.GetOrigin(origin);
    iElement.GetSize(box.width, box.height);
    box.x = origin.GetX();
    box.y = origin.GetY();
    return box;
}

/// What an element takes over from its surroundings.
struct Place {
    VEKPrtColourTable* colours = nullptr;
    /// From the coordinates of the element to those of the page.
    Affine map = {};
    /// Where a pattern repeats: the box of the page or of the nearest symbol, and the map of its coordinates.
    Box area = {};
    Affine areaMap = {};

    /// The smallest box around that area in the coordinates of the element.
    Box Covered() const;
};

/// A bitmap by the lower left corner that it is turned about; no image, with a warning, for one that has no
/// pixels or no size.
struct Bitmap {
    VEKPixelImage* image = nullptr;
    /// Takes the unit square to the place of the bitmap.
    std::vector<Elementary> placement = {};
};
Bitmap BitmapOf(const Reporter& iReporter, const VEKPrtBitmapImageElt& iBitmap);

/// Where the link of a group leads; empty, with a warning, for one that would run a program.
std::string LinkOf(const Reporter& iReporter, const VEKPrtGroupElt& iGroup);
/// With %20 and its like resolved.
std::string DecodedUri(std::string_view iText);

/// A bare element has nothing to draw; warns of a class that is derived from it but from none that is known.
void WarnUnlessBare(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement);

/// The units of a page; millimetres, with a warning, for unknown ones.
VEKPrtImageUnits UnitsOf(const Reporter& iReporter, const VEKPrtImageElt& iPage);

} // namespace vekprt::drawing

#endif
