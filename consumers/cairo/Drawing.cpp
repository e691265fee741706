#include "Drawing.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>

#include "Contents.h"
#include "VEKPixelImage.h"
#include "VEKPrtChildren.h"
#include "VEKPrtValues.h"

namespace vekprt::cairo {

namespace {

cairo_matrix_t MatrixOf(const Affine& iMap) { return {iMap.a, iMap.b, iMap.c, iMap.d, iMap.e, iMap.f}; }

// From the unit square, y up, to pixels, y down.
Affine ToPixels(cairo_surface_t* iSurface) {
    const double width = cairo_image_surface_get_width(iSurface);
    const double height = cairo_image_surface_get_height(iSurface);
    return {width, 0, 0, -height, 0, height};
}

void SetSource(cairo_t* ioCairo, cairo_surface_t* iSurface, const Affine& iToSurface, cairo_extend_t iExtend,
               cairo_filter_t iFilter) {
    cairo_set_source_surface(ioCairo, iSurface, 0, 0);
    cairo_pattern_t* const source = cairo_get_source(ioCairo);
    const cairo_matrix_t matrix = MatrixOf(iToSurface);
    cairo_pattern_set_matrix(source, &matrix);
    cairo_pattern_set_extend(source, iExtend);
    cairo_pattern_set_filter(source, iFilter);
}

// As the value of a tag's attribute, and as a string of PDF, to which cairo copies it as it is.
std::string Uri(const std::string& iLink) {
    static const char digits[] = "0123456789ABCDEF";
    std::string uri;
    for (const char c : iLink) {
        const auto code = static_cast<unsigned char>(c);
        if (code > ' ' && code < 0x7F && !std::strchr("()\\'<>", c)) {
            uri += c;
        } else {
            uri += '%';
            uri += digits[code / 16];
            uri += digits[code % 16];
        }
    }
    return uri;
}

} // namespace

cairo_surface_t* Images::SurfaceOf(const Reporter& iReporter, const VEKPrtGraphicPrimitiveElt& iElement,
                                   const VEKPixelImage& iImage) {
    Surface& surface = _surfaces[&iImage];
    if (surface) return surface.get();
    const int width = iImage.GetWidth(), height = iImage.GetHeight();
    surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    if (cairo_surface_status(surface.get()) == CAIRO_STATUS_NO_MEMORY) throw std::bad_alloc();
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
        iReporter.Warn(iElement, "image larger than 32767 pixels; omitted");
        surface.reset();
        return nullptr;
    }
    unsigned char* const data = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    for (int y = 0; y < height; ++y) {
        const unsigned char* from = iImage.GetRow(y);
        for (int x = 0; x < width; ++x, from += 4) {
            const unsigned alpha = from[3];
            const auto share = [&](unsigned iValue) { return (iValue * alpha + 127U) / 255U; };
            const unsigned pixel = alpha << 24 | share(from[0]) << 16 | share(from[1]) << 8 | share(from[2]);
            std::memcpy(data + static_cast<std::ptrdiff_t>(y) * stride + 4 * static_cast<std::ptrdiff_t>(x),
                        &pixel, sizeof pixel);
        }
    }
    cairo_surface_mark_dirty(surface.get());
    return surface.get();
}

// The transforms of an element, for as long as it lives.
class Drawing::Scope {
public:
    Scope(Drawing& ioDrawing, const VEKPrtGraphicPrimitiveElt& iElement,
          const std::vector<Elementary>& iTransforms, bool iSaves = false)
        : _drawing(ioDrawing), _place(ioDrawing._place), _bound(ioDrawing._bound),
          _saves(iSaves || !iTransforms.empty()) {
        if (_saves) cairo_save(_drawing._cairo);
        if (iTransforms.empty()) return;
        const Affine map = Compose(iTransforms);
        const cairo_matrix_t matrix = MatrixOf(map);
        cairo_matrix_t whole;
        cairo_get_matrix(_drawing._cairo, &whole);
        cairo_matrix_multiply(&whole, &matrix, &whole);
        // What has been flattened is not seen, and cairo takes it for an error.
        constexpr double flat = 1e-30;
        _isVisible = _drawing._reporter.IsInRange(iElement, map) &&
                     std::fabs(whole.xx * whole.yy - whole.xy * whole.yx) > flat &&
                     std::fabs(map.Determinant()) > flat;
        if (!_isVisible) return;
        cairo_transform(_drawing._cairo, &matrix);
        _drawing._place.map = _place.map * map;
        _drawing.MeasureBound();
    }
    ~Scope() {
        if (_saves) cairo_restore(_drawing._cairo);
        _drawing._place = _place;
        _drawing._bound = _bound;
    }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
    explicit operator bool() const { return _isVisible; }

private:
    Drawing& _drawing;
    const Place _place;
    const double _bound;
    const bool _saves;
    bool _isVisible = true;
};

// Draws outlines as cairo's path, as far as its numbers have room for them.
class Drawing::Pen {
public:
    Pen(cairo_t* iCairo, double iBound) : _cairo(iCairo), _bound(iBound) {}
    bool Fits() const { return _fits; }

    void MoveTo(const VEKMathPoint2D& iTo) {
        if (HasRoomFor(iTo)) cairo_move_to(_cairo, iTo.GetX(), iTo.GetY());
    }
    void LineTo(const VEKMathPoint2D& iTo) {
        if (HasRoomFor(iTo)) cairo_line_to(_cairo, iTo.GetX(), iTo.GetY());
    }
    // The same curve as a cubic one: each handle is two thirds of the way to the control point.
    void QuadraticTo(const VEKMathPoint2D& iHandle, const VEKMathPoint2D& iTo) {
        double x = 0, y = 0;
        cairo_get_current_point(_cairo, &x, &y);
        const auto handle = [&](double iX, double iY) {
            return VEKMathPoint2D(iX + (iHandle.GetX() - iX) * 2 / 3, iY + (iHandle.GetY() - iY) * 2 / 3);
        };
        if (HasRoomFor(iHandle)) CubicTo(handle(x, y), handle(iTo.GetX(), iTo.GetY()), iTo);
    }
    void CubicTo(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond, const VEKMathPoint2D& iTo) {
        if (HasRoomFor(iFirst) && HasRoomFor(iSecond) && HasRoomFor(iTo))
            cairo_curve_to(_cairo, iFirst.GetX(), iFirst.GetY(), iSecond.GetX(), iSecond.GetY(), iTo.GetX(),
                           iTo.GetY());
    }
    void Close() { cairo_close_path(_cairo); }
    void Rectangle(const VEKMathPoint2D& iFirst, const VEKMathPoint2D& iSecond) {
        if (HasRoomFor(iFirst) && HasRoomFor(iSecond))
            cairo_rectangle(
                _cairo, std::min(iFirst.GetX(), iSecond.GetX()), std::min(iFirst.GetY(), iSecond.GetY()),
                std::fabs(iSecond.GetX() - iFirst.GetX()), std::fabs(iSecond.GetY() - iFirst.GetY()));
    }
    void Arc(const EllipseShape& iShape) {
        const VEKMathPoint2D reach(std::fabs(iShape.centre.GetX()) + std::fabs(iShape.radiusX),
                                   std::fabs(iShape.centre.GetY()) + std::fabs(iShape.radiusY));
        const bool isFinite = std::isfinite(iShape.start + iShape.end + iShape.slope);
        _fits = HasRoomFor(reach) && isFinite;
        if (!_fits || iShape.radiusX == 0.0 || iShape.radiusY == 0.0) return;
        cairo_save(_cairo);
        cairo_translate(_cairo, iShape.centre.GetX(), iShape.centre.GetY());
        cairo_rotate(_cairo, Radians(iShape.slope));
        cairo_scale(_cairo, iShape.radiusX, iShape.radiusY);
        cairo_arc(_cairo, 0, 0, 1, Radians(iShape.start), Radians(iShape.end));
        cairo_restore(_cairo);
    }

private:
    // Once something has not fitted, no more is drawn.
    bool HasRoomFor(const VEKMathPoint2D& iPoint) {
        _fits = _fits && std::fabs(iPoint.GetX()) <= _bound && std::fabs(iPoint.GetY()) <= _bound;
        return _fits;
    }

    cairo_t* const _cairo;
    const double _bound;
    bool _fits = true;
};

Drawing::Drawing(cairo_t* iCairo, const Reporter& iReporter, Images& ioImages, Destinations& ioDestinations)
    : _cairo(iCairo), _reporter(iReporter), _images(ioImages), _destinations(ioDestinations) {
    const cairo_surface_type_t type = cairo_surface_get_type(cairo_get_target(iCairo));
    _keepsText = type == CAIRO_SURFACE_TYPE_PDF || type == CAIRO_SURFACE_TYPE_PS ||
                 type == CAIRO_SURFACE_TYPE_SVG || type == CAIRO_SURFACE_TYPE_RECORDING;
}

Box SizeInPoints(const Reporter& iReporter, const VEKPrtImageElt& iPage) {
    static const double points[] = {0.75, 1.0, 12.0, 72.0, 72.0 / 25.4, 72.0 / 2.54, 72.0 / 0.0254};
    Box box = BoxOf(iPage);
    if (box.IsEmpty()) {
        iReporter.Warn(iPage, "a page without size");
        return {0, 0, 595, 842};
    }
    const double point = points[UnitsOf(iReporter, iPage)];
    return {box.x * point, box.y * point, box.width * point, box.height * point};
}

// Cairo fails at tags where nothing can be seen.
bool Drawing::CanTag() const {
    double left = 0, top = 0, right = 0, bottom = 0;
    cairo_clip_extents(_cairo, &left, &top, &right, &bottom);
    return !_inPattern && left < right && top < bottom;
}

// Where links to the element's identifier lead.
template <class Use>
void Drawing::DrawAsDestination(const VEKPrtGraphicPrimitiveElt& iElement, Use iDraw) {
    if (_destinations.empty()) return iDraw();
    VEKUnicodeString id;
    iElement.GetID(id);
    const auto found = _destinations.find(id.ToUtf8());
    if (found == _destinations.end() || found->second.isSet || !CanTag()) return iDraw();
    found->second.isSet = true;
    // A link that is around begins anew within: one inside may interrupt it, and tags must nest.
    std::string link;
    SwapLink(link);
    cairo_tag_begin(_cairo, CAIRO_TAG_DEST, ("name='" + found->second.name + "'").c_str());
    SwapLink(link);
    iDraw();
    SwapLink(link);
    cairo_tag_end(_cairo, CAIRO_TAG_DEST);
    SwapLink(link);
}

void Drawing::DrawPage(VEKPrtImageElt& ioPage) {
    constexpr long minAllowance = 10000000, minOutlineAllowance = 100000, allowanceFactor = 10;
    const Contents contents = ContentsOf(ioPage);
    _allowance = minAllowance + allowanceFactor * contents.count;
    _outlineAllowance = minOutlineAllowance + allowanceFactor * contents.count;

    const Box size = SizeInPoints(_reporter, ioPage);
    Box box = BoxOf(ioPage);
    if (box.IsEmpty()) box = size;
    const double point = size.width / box.width;
    ioPage.GetColourTable(_place.colours);
    _place.area = box;
    _tolerance = 1e-5 * std::max(box.width, box.height);

    const Scope state(*this, ioPage, {}, true);
    cairo_new_path(_cairo);
    cairo_rectangle(_cairo, 0, 0, size.width, size.height);
    cairo_clip(_cairo);
    cairo_translate(_cairo, 0, size.height);
    cairo_scale(_cairo, point, -point);
    cairo_translate(_cairo, -box.x, -box.y);
    cairo_set_operator(_cairo, CAIRO_OPERATOR_OVER);
    cairo_set_miter_limit(_cairo, mitreLimit);
    cairo_set_dash(_cairo, nullptr, 0, 0);
    MeasureBound();
    const Scope scope(*this, ioPage, PlacementOf(ioPage));
    if (scope) DrawAsDestination(ioPage, [&] { DrawChildren(ioPage); });
}

void Drawing::MeasureBound() {
    constexpr double room = 8e6; // of 2^23
    cairo_matrix_t m;
    double scaleX = 1, scaleY = 1;
    cairo_get_matrix(_cairo, &m);
    cairo_surface_get_device_scale(cairo_get_target(_cairo), &scaleX, &scaleY);
    const double offset = std::max(std::fabs(m.x0), std::fabs(m.y0));
    _bound = (room / std::max({1.0, std::fabs(scaleX), std::fabs(scaleY)}) - offset) /
             std::max(std::fabs(m.xx) + std::fabs(m.xy), std::fabs(m.yx) + std::fabs(m.yy));
}

bool Drawing::Fits(const VEKPrtGraphicPrimitiveElt& iElement, std::initializer_list<double> iValues) const {
    const bool fits = std::all_of(iValues.begin(), iValues.end(),
                                  [&](double iValue) { return std::fabs(iValue) <= _bound; });
    if (!fits) _reporter.WarnOutOfRange(iElement);
    return fits;
}

void Drawing::Draw(VEKPrtGraphicPrimitiveElt& ioElement) {
    if (--_allowance < 0) return _reporter.Warn(ioElement, "used at too many places; omitted");
    DrawAsDestination(ioElement, [&] { Visit(ioElement, *this); });
}

void Drawing::SwapLink(std::string& ioLink) {
    if (!_link.empty()) cairo_tag_end(_cairo, CAIRO_TAG_LINK);
    _link.swap(ioLink);
    if (!_link.empty()) cairo_tag_begin(_cairo, CAIRO_TAG_LINK, _link.c_str());
}

template <class Container>
void Drawing::DrawChildren(Container& ioContainer, int iNesting) {
    if (std::find(_open.begin(), _open.end(), &ioContainer) != _open.end())
        return _reporter.Warn(ioContainer, "contains itself");
    if (_nesting + iNesting > maxNesting) return _reporter.Warn(ioContainer, "nested too deeply");
    _nesting += iNesting;
    _open.push_back(&ioContainer);
    for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(ioContainer))
        Draw(child);
    _open.pop_back();
    _nesting -= iNesting;
}

template <class Shape>
std::enable_if_t<HasStroke<Shape>::value> Drawing::operator()(Shape& ioShape) {
    const Scope scope(*this, ioShape, PlacementOf(ioShape));
    if (!scope) return;
    Pen pen(_cairo, _bound);
    Outliner<Pen>{_reporter, pen, _place.map, _tolerance, _nesting, _outlineAllowance}(ioShape);
    if (!pen.Fits())
        _reporter.WarnOutOfRange(ioShape);
    else if (cairo_has_current_point(_cairo))
        Paint(ioShape, LookOf(_reporter, ioShape));
    cairo_new_path(_cairo);
}

void Drawing::operator()(VEKPrtBitmapImageElt& ioBitmap) {
    const Bitmap bitmap = BitmapOf(_reporter, ioBitmap);
    if (!bitmap.image) return;
    const Scope scope(*this, ioBitmap, bitmap.placement);
    cairo_surface_t* const surface = _images.SurfaceOf(_reporter, ioBitmap, *bitmap.image);
    if (!scope || !surface || !Fits(ioBitmap, {1.0})) return;
    SetSource(_cairo, surface, ToPixels(surface), CAIRO_EXTEND_PAD, CAIRO_FILTER_GOOD);
    cairo_rectangle(_cairo, 0, 0, 1, 1);
    cairo_fill(_cairo);
}

void Drawing::operator()(VEKPrtGroupElt& ioGroup) {
    const Scope scope(*this, ioGroup, PlacementOf(ioGroup));
    if (!scope) return;
    std::string link = LinkOf(_reporter, ioGroup);
    if (!link.empty() && link.front() == '#') {
        const auto found = _destinations.find(DecodedUri(link.substr(1)));
        link = found != _destinations.end() ? "dest='" + found->second.name + "'" : "";
    } else if (!link.empty()) {
        link = "uri='" + Uri(link) + "'";
    }
    if (link.empty() || !CanTag()) return DrawChildren(ioGroup);
    SwapLink(link);
    DrawChildren(ioGroup);
    SwapLink(link);
}

void Drawing::operator()(VEKPrtClosedFigureRegionElt& ioRegion) {
    const Scope scope(*this, ioRegion, PlacementOf(ioRegion));
    if (scope) DrawChildren(ioRegion);
}

void Drawing::operator()(VEKPrtSymbolElt& ioSymbol) {
    const Scope scope(*this, ioSymbol, PlacementOf(ioSymbol), true);
    if (!scope) return;
    const Box box = BoxOf(ioSymbol);
    if (!box.IsEmpty()) {
        cairo_rectangle(_cairo, box.x, box.y, box.width, box.height);
        cairo_clip(_cairo);
        _place.area = box;
        _place.areaMap = _place.map;
    }
    DrawChildren(ioSymbol);
}

void Drawing::operator()(VEKPrtImageElt& ioNested) {
    const Scope scope(*this, ioNested, PlacementOf(ioNested));
    if (!scope) return;
    VEKPrtColourTable* own = nullptr;
    ioNested.GetColourTable(own);
    if (own) _place.colours = own;
    DrawChildren(ioNested);
}

// The content of the tile is recorded, with a pixel of the target as its unit, and repeated over the area.
void Drawing::operator()(VEKPrtPatternElt& ioPattern) {
    constexpr double maxSide = 8192;
    const Box tile = BoxOf(ioPattern);
    const Affine transform = Compose(PlacementOf(ioPattern));
    if (tile.IsEmpty() || transform.Determinant() == 0.0)
        return _reporter.Warn(ioPattern, "pattern whose box has no area");
    if (!_reporter.IsInRange(ioPattern, transform)) return;
    cairo_matrix_t m;
    cairo_get_matrix(_cairo, &m);
    const Affine toDevice = Affine{m.xx, m.yx, m.xy, m.yy, m.x0, m.y0} * transform;
    const double width = std::clamp(std::ceil(tile.width * std::hypot(toDevice.a, toDevice.b)), 1.0, maxSide);
    const double height =
        std::clamp(std::ceil(tile.height * std::hypot(toDevice.c, toDevice.d)), 1.0, maxSide);
    const cairo_rectangle_t extents = {0, 0, width, height};
    const Surface surface(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extents));
    const Affine toTile =
        Affine{width / tile.width, 0, 0, height / tile.height, 0, 0} * Affine{1, 0, 0, 1, -tile.x, -tile.y};
    {
        const Context recorder(cairo_create(surface.get()));
        const cairo_matrix_t matrix = MatrixOf(toTile);
        cairo_set_matrix(recorder.get(), &matrix);
        cairo_set_miter_limit(recorder.get(), mitreLimit);
        Drawing content(*this);
        content._cairo = recorder.get();
        content._inPattern = true;
        content._place.map = _place.map * transform;
        content.MeasureBound();
        content.DrawChildren(ioPattern, nestingOfPattern);
        _allowance = content._allowance;
        _outlineAllowance = content._outlineAllowance;
    }
    const Box covered = _place.Covered();
    SetSource(_cairo, surface.get(), toTile * transform.Inverse(), CAIRO_EXTEND_REPEAT, CAIRO_FILTER_GOOD);
    cairo_rectangle(_cairo, covered.x, covered.y, covered.width, covered.height);
    cairo_fill(_cairo);
}

template <class Bare>
std::enable_if_t<std::is_same_v<Bare, VEKPrtGraphicPrimitiveElt>> Drawing::operator()(Bare& ioBare) {
    WarnUnlessBare(_reporter, ioBare);
}

void Drawing::SetColour(const VEKPrtGraphicPrimitiveElt& iElement, unsigned iIndex, unsigned char iOpacity) {
    const Rgb colour = ColourOf(_reporter, iElement, _place.colours, iIndex);
    cairo_set_source_rgba(_cairo, colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0,
                          iOpacity / 255.0);
}

bool Drawing::SetFillSource(const VEKPrtGraphicPrimitiveElt& iElement, const Fill& iFill) {
    cairo_surface_t* const surface =
        iFill.kind == Fill::Image ? _images.SurfaceOf(_reporter, iElement, *iFill.image) : nullptr;
    if (surface)
        SetSource(_cairo, surface, ToPixels(surface) * iFill.tile.Inverse(), CAIRO_EXTEND_REPEAT,
                  CAIRO_FILTER_NEAREST);
    else
        SetColour(iElement, iFill.colour, iFill.opacity);
    return surface;
}

// The source is set already.
void Drawing::PaintInside(const Fill& iFill, bool iIsImage) {
    cairo_set_fill_rule(_cairo, iFill.isEvenOdd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
    if (iIsImage && iFill.opacity != 255) {
        cairo_save(_cairo);
        cairo_clip_preserve(_cairo);
        cairo_paint_with_alpha(_cairo, iFill.opacity / 255.0);
        cairo_restore(_cairo);
    } else {
        cairo_fill_preserve(_cairo);
    }
}

void Drawing::Paint(const VEKPrtGraphicPrimitiveElt& iElement, const Look& iLook) {
    if (iLook.fill.kind != Fill::None) PaintInside(iLook.fill, SetFillSource(iElement, iLook.fill));
    PaintStroke(iElement, iLook.stroke);
    cairo_new_path(_cairo);
}

void Drawing::PaintStroke(const VEKPrtGraphicPrimitiveElt& iElement, const Stroke& iStroke) {
    if (!iStroke.isDrawn) return;
    static const cairo_line_cap_t caps[] = {CAIRO_LINE_CAP_BUTT, CAIRO_LINE_CAP_ROUND, CAIRO_LINE_CAP_SQUARE};
    static const cairo_line_join_t joins[] = {CAIRO_LINE_JOIN_MITER, CAIRO_LINE_JOIN_ROUND,
                                              CAIRO_LINE_JOIN_BEVEL};
    const double divisor = iStroke.DivisorIn(_place.map);
    if (!Fits(iElement, {iStroke.width / divisor})) return;
    SetColour(iElement, iStroke.colour, iStroke.opacity);
    cairo_set_line_width(_cairo, iStroke.width / divisor);
    cairo_set_line_cap(_cairo, caps[static_cast<int>(iStroke.cap)]);
    cairo_set_line_join(_cairo, joins[static_cast<int>(iStroke.join)]);
    if (iStroke.dashes.empty()) {
        cairo_stroke(_cairo);
        return;
    }
    std::vector<double> dashes = iStroke.dashes;
    for (double& dash : dashes)
        dash /= divisor;
    cairo_set_dash(_cairo, dashes.data(), static_cast<int>(dashes.size()), 0);
    cairo_stroke(_cairo);
    cairo_set_dash(_cairo, nullptr, 0, 0);
}

void Drawing::operator()(VEKPrtTextElt& ioText) {
    const std::optional<Lettering> lettering = LetteringOf(_reporter, ioText);
    if (!lettering) return;
    const Scope scope(*this, ioText, PlacementOf(ioText), true);
    if (!scope) return;
    const Look look = LookOf(_reporter, ioText);
    // The image of a fill lies in the coordinates of the element, not of its letters.
    const bool isImage = look.fill.kind != Fill::None && SetFillSource(ioText, look.fill);
    const Scope letters(*this, ioText, lettering->placement);
    if (letters && Fits(ioText, {lettering->height, lettering->firstLine}))
        PaintText(ioText, *lettering, look, isImage);
}

} // namespace vekprt::cairo
