// The SVG consumer: what pages of one sort take in time and in bytes.
#include <random>
#include <sstream>

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

VEKRef<VEKPrtModel> NewModel(VEKRef<VEKPrtImageElt>& oPage) {
    auto model = Make<VEKPrtModel>();
    oPage = Make<VEKPrtImageElt>();
    oPage->SetSize(420.0, 297.0);
    auto* const colours = new VEKPrtColourTable;
    unsigned index = 0;
    colours->AddColour(200, 30, 40, index);
    oPage->SetColourTable(colours);
    model->AddImage(oPage.Get());
    return model;
}

VEKMathPoint2D AnyPoint(std::mt19937& ioRandom) {
    std::uniform_real_distribution<double> x(0.0, 420.0), y(0.0, 297.0);
    return VEKMathPoint2D(x(ioRandom), y(ioRandom));
}

// Writes the page pass by pass; the parts of a page are points, lines or uses.
void Write(benchmark::State& ioState, const VEKPrtModel& iModel, double iParts) {
    std::vector<double> nanoseconds;
    std::size_t bytes = 0;
    for (auto _ : ioState) {
        std::ostringstream stream;
        const double seconds = Seconds([&] {
            if (!vekprt::WriteSvg(iModel, 1, stream)) ioState.SkipWithError("the page is not written");
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
    VEKRef<VEKPrtImageElt> page;
    const auto model = NewModel(page);
    std::mt19937 random(1);
    for (int i = 0; i < points; i += length) {
        std::vector<double> values;
        while (values.size() < 2 * length) {
            const VEKMathPoint2D point = AnyPoint(random);
            values.insert(values.end(), {point.GetX(), point.GetY()});
        }
        page->AddChild(Make<VEKPrtPolylineElt>(values.data(), length).Get());
    }
    Write(ioState, *model, points);
}
BENCHMARK(Points)->Apply(Passes)->Arg(100000)->Arg(1000000);

void Lines(benchmark::State& ioState) {
    const int lines = static_cast<int>(ioState.range(0));
    VEKRef<VEKPrtImageElt> page;
    const auto model = NewModel(page);
    std::mt19937 random(1);
    for (int i = 0; i < lines; ++i)
        page->AddChild(Make<VEKPrtLineElt>(AnyPoint(random), AnyPoint(random)).Get());
    Write(ioState, *model, lines);
}
BENCHMARK(Lines)->Apply(Passes)->Arg(100000)->Arg(1000000);

void SymbolUses(benchmark::State& ioState) {
    const int uses = static_cast<int>(ioState.range(0));
    VEKRef<VEKPrtImageElt> page;
    const auto model = NewModel(page);
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
        page->AddChild(group.Get());
    }
    Write(ioState, *model, uses);
}
BENCHMARK(SymbolUses)->Apply(Passes)->Arg(1000)->Arg(100000);

} // namespace
