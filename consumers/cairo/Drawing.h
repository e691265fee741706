// Draws the elements of a page with cairo.
#ifndef Drawing_H
#define Drawing_H

#include <cairo.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Lettering.h"
#include "Outline.h"
#include "Records.h"

namespace vekprt::cairo {

using namespace drawing;

/// Owners of what cairo and Pango hand out.
template <auto Release>
struct Releaser {
    template <class Object>
    void operator()(Object* iObject) const {
        Release(iObject);
    }
};
using Surface = std::unique_ptr<cairo_surface_t, Releaser<cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, Releaser<cairo_destroy>>;

/// Pixel images as cairo has them: converted once, and stored once in a document.
class Images {
public:
    /// Null, with a warning, for an image that is larger than cairo's can be.
    cairo_surface_t* SurfaceOf(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement,
                               const VEKPixelImage& iImage);

private:
    std::map<const VEKPixelImage*, Surface> _surfaces;
};

/// The elements that links of a document lead to, by identifier.
struct Destination {
    std::string name;
    bool isSet = false;
};
using Destinations = std::map<std::string, Destination>;

/// A visitor: draws each element by its class.
class Drawing {
public:
    Drawing(cairo_t* iCairo, const Reporter& iReporter, Images& ioImages, Destinations& ioDestinations);

    /// The page, its upper left corner at the origin, and a point as one unit.
    void DrawPage(VEKPrtImageElt& ioPage);
    void Draw(VEKPrtGraphicPrimitiveElt& ioElement);
    bool CanTag() const;
    template <class Use>
    void DrawAsDestination(const VEKPrtGraphicPrimitiveElt& iElement, Use iDraw);

    template <class Shape>
    std::enable_if_t<HasStroke<Shape>::value> operator()(Shape& ioShape);
    void operator()(VEKPrtTextElt& ioText);
    void operator()(VEKPrtBitmapImageElt& ioBitmap);
    void operator()(VEKPrtGroupElt& ioGroup);
    void operator()(VEKPrtClosedFigureRegionElt& ioRegion);
    void operator()(VEKPrtSymbolElt& ioSymbol);
    void operator()(VEKPrtPatternElt& ioPattern);
    void operator()(VEKPrtImageElt& ioNested);
    template <class Bare>
    std::enable_if_t<std::is_same_v<Bare, VEKPrtGraphicPrimitiveElt>> operator()(Bare& ioBare);

private:
    class Scope;
    class Pen;

    // The path is painted and then dropped.
    void Paint(const VEKPrtGraphicPrimitiveElt& iElement, const Look& iLook);
    void PaintInside(const Fill& iFill, bool iIsImage);
    void PaintStroke(const VEKPrtGraphicPrimitiveElt& iElement, const Stroke& iStroke);
    bool SetFillSource(const VEKPrtGraphicPrimitiveElt& iElement, const Fill& iFill);
    void SetColour(const VEKPrtGraphicPrimitiveElt& iElement, unsigned iIndex, unsigned char iOpacity);
    /// The source for the inside is set already.
    void PaintText(const VEKPrtTextElt& iText, const Lettering& iLettering, const Look& iLook,
                   bool iIsImageFill);

    template <class Container>
    void DrawChildren(Container& ioContainer, int iNesting = 1);
    /// Links cannot be nested: the one that is around ends where another begins.
    void SwapLink(std::string& ioLink);
    bool Fits(const VEKPrtGraphicPrimitiveElt& iElement, std::initializer_list<double> iValues) const;
    void MeasureBound();

    cairo_t* _cairo;
    Reporter _reporter;
    Images& _images;
    Destinations& _destinations;
    Place _place = {};
    /// The greatest coordinate for which cairo's fixed-point numbers have room.
    double _bound = 0;
    /// How far chords may be off their curves, on the page.
    double _tolerance = 0;
    int _nesting = 0;
    long _allowance = 0, _outlineAllowance = 0;
    std::vector<const VEKPrtGraphicPrimitiveElt*> _open = {};
    std::string _link = {};
    bool _inPattern = false;
    /// Whether the target has text as such.  On others, letters would move to whole pixels: their outlines do
    /// not.
    bool _keepsText;
};

/// The size of a page in points; A4, with a warning, for a page without size.
Box SizeInPoints(const Reporter& iReporter, const VEKPrtImageElt& iPage);

} // namespace vekprt::cairo

#endif
