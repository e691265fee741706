// The consumers: what pages of one sort take as SVG, in time and in bytes, and by cairo, beside its own
// calls.
#include <cairo-pdf.h>

#include <random>
#include <sstream>

#include "CairoWriter.h"
#include "Compare.h"
#include "SvgWriter.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtModel.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtSymbolElt.h"
#include "VEKRef.h"

using vekprt::Make;
using vekprt::VEKRef;

namespace {

VEKMathPoint2D AnyPoint(std::mt19937& ioRandom) {
    std::uniform_real_distribution<double> x(0.0, 420.0), y(0.0, 297.0);
    return VEKMathPoint2D(x(ioRandom), y(ioRandom));
}

// What a client would draw from without the library.
struct Plain {
    std::vector<double> xy;
    double width = 0.1;
    double red = 200 / 255.0, green = 30 / 255.0, blue = 40 / 255.0;
    cairo_line_cap_t cap = CAIRO_LINE_CAP_BUTT;
    cairo_line_join_t join = CAIRO_LINE_JOIN_MITER;
};

// A model of one page.
struct Sheet {
    VEKRef<VEKPrtModel> model = Make<VEKPrtModel>();
    VEKRef<VEKPrtImageElt> page = Make<VEKPrtImageElt>();

    Sheet() {
        page->SetSize(420.0, 297.0);
        auto* const colours = new VEKPrtColourTable;
        unsigned index = 0;
        colours->AddColour(200, 30, 40, index);
        page->SetColourTable(colours);
        model->AddImage(page.Get());
    }
    // As many polylines, or lines for two points, of any points; returns them as plain structs, too.
    std::vector<Plain> AddPolylines(int iCount, int iPoints) const {
        std::mt19937 random(1);
        std::vector<Plain> plain(static_cast<std::size_t>(iCount));
        for (Plain& line : plain) {
            std::vector<double>& xy = line.xy;
            for (int i = 0; i < iPoints; ++i) {
                const VEKMathPoint2D point = AnyPoint(random);
                xy.insert(xy.end(), {point.GetX(), point.GetY()});
            }
            if (iPoints == 2)
                page->AddChild(
                    Make<VEKPrtLineElt>(VEKMathPoint2D(xy[0], xy[1]), VEKMathPoint2D(xy[2], xy[3])).Get());
            else
                page->AddChild(Make<VEKPrtPolylineElt>(xy.data(), iPoints).Get());
        }
        return plain;
    }
};

// Writes the page pass by pass; the parts of a page are points, lines or uses.
void Write(benchmark::State& ioState, const Sheet& iSheet, double iParts) {
    std::vector<double> nanoseconds;
    std::size_t bytes = 0;
    for (auto _ : ioState) {
        std::ostringstream stream;
        const double seconds = Seconds([&] {
            if (!vekprt::WriteSvg(*iSheet.model, 1, stream)) ioState.SkipWithError("the page is not written");
        });
        nanoseconds.push_back(seconds * 1e9 / iParts);
        bytes = stream.str().size();
        ioState.SetIterationTime(seconds);
    }
    ioState.counters["part ns"] = Median(nanoseconds);
    ioState.counters["part bytes"] = static_cast<double>(bytes) / iParts;
}

void Points(benchmark::State& ioState) {
    constexpr int length = 1000;
    const int points = static_cast<int>(ioState.range(0));
    const Sheet sheet;
    sheet.AddPolylines(points / length, length);
    Write(ioState, sheet, points);
}
BENCHMARK(Points)->Apply(Passes)->Arg(100000)->Arg(1000000);

void Lines(benchmark::State& ioState) {
    const int lines = static_cast<int>(ioState.range(0));
    const Sheet sheet;
    sheet.AddPolylines(lines, 2);
    Write(ioState, sheet, lines);
}
BENCHMARK(Lines)->Apply(Passes)->Arg(100000)->Arg(1000000);

void SymbolUses(benchmark::State& ioState) {
    const int uses = static_cast<int>(ioState.range(0));
    const Sheet sheet;
    std::mt19937 random(1);
    const auto symbol = Make<VEKPrtSymbolElt>();
    for (int i = 0; i < 50; ++i)
        symbol->AddChild(Make<VEKPrtLineElt>(AnyPoint(random), AnyPoint(random)).Get());
    for (int i = 0; i < uses; ++i) {
        const auto group = Make<VEKPrtGroupElt>();
        const VEKMathPoint2D point = AnyPoint(random);
        VEKPrtTransformAttributes transform;
        transform.AddTranslation(VEKMathVector2D(point.GetX(), point.GetY()));
        group->SetTransformAttributes(transform);
        group->AddChild(symbol.Get());
        sheet.page->AddChild(group.Get());
    }
    Write(ioState, sheet, uses);
}
BENCHMARK(SymbolUses)->Apply(Passes)->Arg(1000)->Arg(100000);

// Calls iDraw with a page of a PDF document, whose bytes are counted and dropped.
template <class Draw>
void OnPdf(Draw iDraw) {
    const auto write = [](void*, const unsigned char*, unsigned) { return CAIRO_STATUS_SUCCESS; };
    cairo_surface_t* const surface = cairo_pdf_surface_create_for_stream(write, nullptr, 1200, 850);
    cairo_t* const context = cairo_create(surface);
    iDraw(context);
    cairo_show_page(context);
    cairo_destroy(context);
    cairo_surface_destroy(surface);
}

void DrawPlain(cairo_t* ioCairo, const std::vector<Plain>& iLines) {
    cairo_translate(ioCairo, 0, 297 * 72 / 25.4);
    cairo_scale(ioCairo, 72 / 25.4, -72 / 25.4);
    for (const Plain& line : iLines) {
        for (std::size_t i = 0; i < line.xy.size(); i += 2) {
            if (i == 0)
                cairo_move_to(ioCairo, line.xy[0], line.xy[1]);
            else
                cairo_line_to(ioCairo, line.xy[i], line.xy[i + 1]);
        }
        cairo_set_source_rgb(ioCairo, line.red, line.green, line.blue);
        cairo_set_line_width(ioCairo, line.width);
        cairo_set_line_cap(ioCairo, line.cap);
        cairo_set_line_join(ioCairo, line.join);
        cairo_stroke(ioCairo);
    }
}

// One drawing a pass.
void CompareOnPdf(benchmark::State& ioState, int iCount, int iPoints) {
    const Sheet sheet;
    const std::vector<Plain> lines = sheet.AddPolylines(iCount, iPoints);
    const auto draw = [&](cairo_t* ioCairo) { vekprt::DrawPage(*sheet.model, 1, ioCairo); };
    const auto drawPlain = [&](cairo_t* ioCairo) { DrawPlain(ioCairo, lines); };
    Compare(
        ioState, 1, [&](int) { OnPdf(draw); }, [&](int) { OnPdf(drawPlain); });
}

void CairoLines(benchmark::State& ioState) { CompareOnPdf(ioState, static_cast<int>(ioState.range(0)), 2); }
BENCHMARK(CairoLines)->Apply(Passes)->Arg(100000);

void CairoPolyline(benchmark::State& ioState) {
    CompareOnPdf(ioState, 1, static_cast<int>(ioState.range(0)));
}
BENCHMARK(CairoPolyline)->Apply(Passes)->Arg(1000000);

} // namespace
