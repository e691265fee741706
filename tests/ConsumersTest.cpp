// Two consumers, one picture: SVG as librsvg renders it, and what cairo draws.
#include <cairo.h>
#include <librsvg/rsvg.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <random>
#include <sstream>

#include "CairoWriter.h"
#include "Fields.h"

#include "Specimen.h"
#include "SvgWriter.h"

namespace {

// A picture of 8-bit colours on white.
class Picture {
public:
    Picture(int iWidth, int iHeight)
        : width(iWidth), height(iHeight),
          _surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, iWidth, iHeight), &cairo_surface_destroy) {}

    template <class Use>
    void Draw(Use iDraw) {
        const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> context(cairo_create(_surface.get()),
                                                                         &cairo_destroy);
        cairo_set_source_rgb(context.get(), 1, 1, 1);
        cairo_paint(context.get());
        iDraw(context.get());
        EXPECT_EQ(cairo_status(context.get()), CAIRO_STATUS_SUCCESS);
        cairo_surface_flush(_surface.get());
    }
    unsigned char* At(int iX, int iY) const {
        return cairo_image_surface_get_data(_surface.get()) +
               static_cast<std::ptrdiff_t>(iY) * cairo_image_surface_get_stride(_surface.get()) +
               4 * static_cast<std::ptrdiff_t>(iX);
    }
    // The mean of the pixel and its neighbours.
    int Blurred(int iX, int iY, int iChannel) const {
        int sum = 0;
        for (int y = iY - 1; y <= iY + 1; ++y)
            for (int x = iX - 1; x <= iX + 1; ++x)
                sum += At(x, y)[iChannel];
        return sum / 9;
    }
    void Save(const std::string& iFile) const {
        cairo_surface_mark_dirty(_surface.get());
        cairo_surface_write_to_png(_surface.get(), iFile.c_str());
    }
    const int width, height;

private:
    std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> _surface;
};

constexpr double pixelsPerPoint = 2.0;

Picture BySvg(const std::string& iSvg, int iWidth, int iHeight) {
    Picture picture(iWidth, iHeight);
    const std::unique_ptr<RsvgHandle, decltype(&g_object_unref)> handle(
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(iSvg.data()), iSvg.size(), nullptr),
        &g_object_unref);
    EXPECT_TRUE(handle) << iSvg.substr(0, 2000);
    // Without hinting, letters are where the layout has them.
    rsvg_handle_internal_set_testing(handle.get(), TRUE);
    const RsvgRectangle viewport = {0, 0, static_cast<double>(iWidth), static_cast<double>(iHeight)};
    picture.Draw([&](cairo_t* ioCairo) {
        EXPECT_TRUE(rsvg_handle_render_document(handle.get(), ioCairo, &viewport, nullptr));
    });
    return picture;
}

// How far two pictures may be apart: the worst pixel, and the mean over all, in steps of a channel.
struct Distance {
    int worst = 0;
    double mean = 0;
};
// Measured.  librsvg smooths the tiles of patterns; dashes add up small differences.
constexpr Distance g_ofCells = {16, 0.5}, g_ofPatternFills = {100, 3.2}, g_ofRandomDrawings = {40, 2.0};

// Draws the page both ways.  Where the pictures are too far apart, they and their difference are left as
// files.
void Compare(const VEKPrtModel& iModel, const std::string& iName, const Distance& iLimit) {
    VEKPrtImageElt& page = *ChildrenOf(iModel).begin();
    double width = 0, height = 0;
    page.GetSize(width, height);
    const double scale = pixelsPerPoint * 72 / 25.4;
    const int pixelsX = static_cast<int>(width * scale), pixelsY = static_cast<int>(height * scale);
    page.SetSize(pixelsX / scale, pixelsY / scale);

    std::ostringstream svg, svgWarnings, cairoWarnings;
    EXPECT_TRUE(WriteSvg(iModel, 1, svg, svgWarnings));
    const Picture first = BySvg(svg.str(), pixelsX, pixelsY);
    Picture second(pixelsX, pixelsY), difference(pixelsX, pixelsY);
    second.Draw([&](cairo_t* ioCairo) {
        cairo_scale(ioCairo, pixelsPerPoint, pixelsPerPoint);
        EXPECT_TRUE(DrawPage(iModel, 1, ioCairo, cairoWarnings));
    });
    // The same warnings but for the name in front.
    const auto plain = [](std::string iText) {
        for (const char* const name : {"svg: ", "cairo: "})
            for (std::size_t at; (at = iText.find(name)) != std::string::npos;)
                iText.erase(at, std::strlen(name));
        return iText;
    };
    EXPECT_EQ(plain(svgWarnings.str()), plain(cairoWarnings.str())) << iName;

    Distance distance;
    difference.Draw([](cairo_t*) {});
    for (int y = 1; y + 1 < pixelsY; ++y) {
        for (int x = 1; x + 1 < pixelsX; ++x) {
            for (int channel = 0; channel < 3; ++channel) {
                const int apart = std::abs(first.Blurred(x, y, channel) - second.Blurred(x, y, channel));
                distance.worst = std::max(distance.worst, apart);
                distance.mean += apart;
                difference.At(x, y)[channel] = static_cast<unsigned char>(255 - apart);
            }
        }
    }
    distance.mean /= 3.0 * pixelsX * pixelsY;
    if (distance.worst <= iLimit.worst && distance.mean <= iLimit.mean) return;
    ADD_FAILURE() << iName << ": the worst pixel is " << distance.worst << " apart, the mean "
                  << distance.mean << "; see " << iName << "-*.png";
    first.Save(iName + "-svg.png");
    second.Save(iName + "-cairo.png");
    difference.Save(iName + "-difference.png");
}

// Drawings by seed: elements of all classes, with any attributes and transforms.
class RandomDrawing {
public:
    explicit RandomDrawing(unsigned iSeed) : _random(iSeed) {
        page->SetSize(size, size);
        auto* const table = new VEKPrtColourTable;
        unsigned index = 0;
        for (int i = 0; i < colours; ++i)
            table->AddColour(Byte(), Byte(), Byte(), index);
        page->SetColourTable(table);
        for (int i = 0; i < 8; ++i)
            page->AddChild(Element(0).Get());
        model->AddImage(page.Get());
    }
    const VEKRef<VEKPrtModel> model = Make<VEKPrtModel>();
    const VEKRef<VEKPrtImageElt> page = Make<VEKPrtImageElt>();

private:
    static constexpr double size = 80;
    static constexpr int colours = 6;
    using Any = VEKRef<VEKPrtGraphicPrimitiveElt>;

    double Number(double iFrom, double iTo) {
        return std::uniform_real_distribution<double>(iFrom, iTo)(_random);
    }
    int Below(int iCount) { return std::uniform_int_distribution<int>(0, iCount - 1)(_random); }
    bool Seldom() { return Below(4) == 0; }
    unsigned char Byte() { return static_cast<unsigned char>(Below(256)); }
    float Angle() { return static_cast<float>(Number(-400, 400)); }
    double Radius() { return Number(2, 14); }
    ::Point Place() { return {Number(5, 40), Number(5, 40)}; }
    std::vector<double> Values(int iCount) {
        std::vector<double> values;
        for (int i = 0; i < iCount; ++i)
            values.push_back(Number(5, 40));
        return values;
    }
    template <class Enumeration>
    Enumeration OneOf(int iFirst, int iLast) {
        return static_cast<Enumeration>(iFirst + Below(iLast - iFirst + 1));
    }

    ::Stroke Plain(double iWidth) {
        ::Stroke stroke;
        stroke.SetStrokeColourIndex(static_cast<unsigned>(Below(colours)));
        if (Seldom()) stroke.SetStrokeColourTransparency(Byte());
        stroke.SetStrokeWidth(iWidth);
        return stroke;
    }
    ::Stroke Outline() {
        ::Stroke stroke = Plain(Number(0.3, 2.5));
        stroke.SetStrokeType(OneOf<VEKPrintLineAttribute>(0, 6));
        stroke.SetStrokeStyle(OneOf<VEKPrintLineAttribute>(8, 9));
        stroke.SetStrokeCap(OneOf<VEKPrintLineAttribute>(10, 12));
        stroke.SetStrokeJoin(OneOf<VEKPrintLineAttribute>(13, 15));
        if (Seldom()) SetDashes(stroke, {static_cast<float>(Number(1, 5)), 2, static_cast<float>(Below(3))});
        return stroke;
    }
    VEKRef<VEKPixelImage> Pixels() {
        auto image = Make<VEKPixelImage>(3, 2);
        for (int i = 0; i < 6; ++i)
            image->SetPixel(i % 3, i / 3, Byte(), Byte(), Byte(), Seldom() ? Byte() : 255);
        return image;
    }
    ::Fill Inside() {
        ::Fill fill;
        fill.SetFillColourIndex(static_cast<unsigned>(Below(colours)));
        if (Seldom()) fill.SetFillColourTransparency(Byte());
        fill.SetFillRule(OneOf<VEKPrtFillRule>(0, 1));
        if (Seldom()) fill.SetFillStyle(VEKPrtFillNone);
        return fill;
    }
    Transform Transforms() {
        Transform transform;
        transform.AddTranslation(Vector(Number(0, 30), Number(0, 30)));
        for (int i = Below(3); i > 0; --i) {
            const int kind = Below(7);
            const double scale = Number(0.6, 1.3) * (Seldom() ? -1 : 1);
            if (kind == 0) transform.AddMatrix(Matrix(scale, Number(-0.4, 0.4), Number(-0.4, 0.4), 1));
            if (kind == 1) transform.AddTranslation(Vector(Number(-5, 5), Number(-5, 5)));
            if (kind == 2) transform.AddRotation(static_cast<float>(Number(-40, 40)));
            if (kind == 3) transform.AddScaleX(scale);
            if (kind == 4) transform.AddScaleY(scale);
            if (kind == 5) transform.AddSkewX(static_cast<float>(Number(-30, 30)));
            if (kind == 6) transform.AddSkewY(static_cast<float>(Number(-30, 30)));
        }
        return transform;
    }

    template <class Element>
    Any With(const VEKRef<Element>& iElement) {
        if constexpr (HasTransform<Element>::value) iElement->SetTransformAttributes(Transforms());
        if constexpr (HasStroke<Element>::value) iElement->SetStrokeAttributes(Outline());
        if constexpr (HasFill<Element>::value) {
            iElement->SetFillAttributes(Inside());
            iElement->SetDrawStyle(OneOf<VEKPrtDrawStyle>(0, 2));
        }
        return iElement;
    }
    template <class Element>
    Any Points(int iCount) {
        return With(Make<Element>(Values(2 * iCount).data(), iCount));
    }
    template <class Container>
    Any Filled(const VEKRef<Container>& iContainer, int iDepth) {
        for (int i = Below(4); i >= 0; --i)
            iContainer->AddChild(Element(iDepth + 1).Get());
        return With(iContainer);
    }
    // librsvg measures lines wrongly where they are skewed or mirrored: what is aligned by its width is
    // neither.
    Any Text(int iDepth) {
        static const char* const texts[] = {"Text", "first line\nsecond", "x\u0301y \u03A9", "<&>  a"};
        const auto text = Make<VEKPrtTextElt>(Place(), VEKUnicodeString(texts[Below(4)]));
        VEKPrtTextAttributes attributes;
        attributes.SetHeight(Number(4, 10));
        attributes.SetWeight(OneOf<VEKPrintTextAttribute>(24, 28));
        const bool isAligned = iDepth == 0;
        if (Seldom()) attributes.SetDirection(Angle());
        if (!isAligned && Seldom()) attributes.SetSlant(static_cast<float>(Number(-20, 20)));
        if (!isAligned && Seldom()) attributes.SetExpansion(Number(0.6, 1.5));
        attributes.SetAnchor(isAligned ? OneOf<VEKPrintTextAttribute>(29, 37)
                                       : static_cast<VEKPrintTextAttribute>(29 + 3 * Below(3)));
        if (isAligned && Seldom()) attributes.SetExtraSpacing(Number(-0.5, 2));
        if (isAligned && Seldom()) attributes.SetWritingMode(VEKPrtTextVertical);
        text->SetTextAttributes(attributes);
        With(text);
        // Dashes along letters add up the smallest differences of their outlines.
        text->SetStrokeAttributes(Plain(0.3));
        Transform transform;
        transform.AddTranslation(Vector(20, 20));
        if (isAligned) text->SetTransformAttributes(transform);
        return text;
    }
    Any Marker() {
        const auto marker = Make<VEKPrtMarkerElt>(Place(), Radius());
        VEKPrtMarkerAttributes attributes;
        attributes.SetMarkerStyle(OneOf<VEKPrintMarkerAttribute>(0, 7));
        marker->SetMarkerAttributes(attributes);
        return With(marker);
    }
    Any Nurbs() {
        const double knots[] = {0, 0, 0, 0, 1, 2, 3, 3, 3, 3};
        std::vector<double> weights = Values(6);
        return With(Make<VEKPrtNURBSElt>(4, 6, Values(12).data(), knots, static_cast<float>(Number(0, 1)),
                                         static_cast<float>(Number(2, 3)), weights.data()));
    }
    Any Figure() {
        const auto figure = Make<VEKPrtClosedFigureElt>();
        for (int i = 0; i < 2; ++i) {
            const auto region = Make<VEKPrtClosedFigureRegionElt>();
            for (int k = 0; k < 3; ++k) {
                const int kind = Below(14);
                region->AddChild(Element(kind < 13 ? kind : 14, 9).Get());
            }
            region->SetTransformAttributes(Transforms());
            figure->AddChild(region.Get());
        }
        return With(figure);
    }
    Any Element(int iDepth) { return Element(Below(iDepth < 2 ? 22 : 17), iDepth); }
    Any Element(int iKind, int iDepth) {
        const std::vector<double> v = Values(2);
        switch (iKind) {
        case 0: return With(Make<VEKPrtLineElt>(Place(), Place()));
        case 1: return With(Make<VEKPrtRectangleElt>(Place(), Place()));
        case 2: return With(Make<VEKPrtCircleElt>(Place(), Radius()));
        case 3: return With(Make<VEKPrtCircularArcElt>(Place(), Radius(), Angle(), Angle()));
        case 4: return With(Make<VEKPrtEllipseElt>(Place(), Radius(), Radius(), Seldom() ? 0.0F : Angle()));
        case 5:
            return With(Make<VEKPrtEllipticalArcElt>(Place(), Radius(), Radius(), Angle(), Angle(), Angle()));
        case 6: return Points<VEKPrtPolylineElt>(5);
        case 7: return Points<VEKPrtPolygonElt>(5);
        case 8: return Points<VEKPrtDisjointPolylineElt>(6);
        case 9: return Points<VEKPrtPolyCubicBezierElt>(7);
        case 10: return Points<VEKPrtPolyQuadraticBezierElt>(5);
        case 11: {
            const int counts[] = {4, 3};
            return With(Make<VEKPrtPolyPolygonElt>(Values(14).data(), counts, 2));
        }
        case 12: return Nurbs();
        case 13: return Marker();
        case 14:
            if (iDepth == 9) return Element(Below(13), 9);
            return Text(iDepth);
        case 15:
            return With(
                Make<VEKPrtBitmapImageElt>(Place(), Radius(), Radius(), Number(-90, 90), Pixels().Get()));
        case 16: return Figure();
        case 17: return Filled(Make<VEKPrtGroupElt>(), iDepth);
        case 18: return Filled(Make<VEKPrtSymbolElt>(Place(), Radius(), Radius()), iDepth);
        case 19: return Filled(Make<VEKPrtImageElt>(), iDepth);
        case 20: return Filled(Make<VEKPrtClosedFigureRegionElt>(), iDepth);
        default: return Filled(Make<VEKPrtPatternElt>(Place(), Radius(), Radius()), iDepth);
        }
    }

    std::mt19937 _random;
};

} // namespace

TEST(Consumers, DrawAtRandomAlike) {
    const char* const count = std::getenv("VEKPRT_DRAWINGS");
    for (unsigned seed = 1; seed <= (count ? std::stoul(count) : 30); ++seed) {
        const RandomDrawing drawing(seed);
        Compare(*drawing.model, "drawing-" + std::to_string(seed), g_ofRandomDrawings);
    }
}

TEST(Consumers, DrawEachCellOfTheSpecimenAlike) {
    const std::vector<std::string> cells = SpecimenCells();
    EXPECT_EQ(cells.size(), 38U);
    for (const std::string& cell : cells)
        Compare(*BuildSpecimenCell(cell).model, cell, cell == "pattern-fill" ? g_ofPatternFills : g_ofCells);
}
