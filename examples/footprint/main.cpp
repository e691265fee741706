// Prints, for each element class, its instance size and how often each operation allocates.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

#include "VEKPixelImage.h"
#include "VEKPrtElements.h"
#include "VEKRef.h"

using vekprt::Make;
using vekprt::VEKRef;

namespace {

long g_allocations = 0;

// Content that copies must allocate or share: arrays, children, images.
const double g_values[] = {0, 0, 1, 1, 2, 0, 3, 1, 4, 0, 5, 1};

template <class Element>
auto Fill(Element& ioElement, int) -> decltype(ioElement.SetPoints(g_values, 4)) {
    ioElement.SetPoints(g_values, 4);
}
template <class Element>
auto Fill(Element& ioElement, int)
    -> decltype(ioElement.AddChild(static_cast<VEKPrtGraphicPrimitiveElt*>(nullptr))) {
    ioElement.AddChild(Make<VEKPrtLineElt>().Get());
}
template <class Element>
void Fill(Element&, long) {}
void Fill(VEKPrtPolyPolygonElt& ioPolygons, int) {
    const int counts[] = {3, 3};
    ioPolygons.SetPoints(g_values, counts, 2);
}
void Fill(VEKPrtNURBSElt& ioCurve, int) {
    ioCurve.SetParameters(3, 4, g_values, g_values, 0.0F, 1.0F, g_values);
}
void Fill(VEKPrtTextElt& ioText, int) { ioText.SetText("text"); }
void Fill(VEKPrtBitmapImageElt& ioBitmap, int) { ioBitmap.SetPixelImage(Make<VEKPixelImage>(4, 4).Get()); }
void Fill(VEKPrtClosedFigureElt& ioFigure, int) {
    ioFigure.AddChild(Make<VEKPrtClosedFigureRegionElt>().Get());
}

template <class Operation>
long AllocationsOf(Operation iOperation) {
    const long before = g_allocations;
    iOperation();
    return g_allocations - before;
}

template <class Element>
void Report() {
    const auto element = Make<Element>();
    const long construct = AllocationsOf([] { Make<Element>(); });
    Fill(*element, 0);
    const long copy = AllocationsOf([&] { Make<Element>(*element); });
    const long duplicate = AllocationsOf([&] {
        VEKPrtGraphicPrimitiveElt* made = nullptr;
        element->Duplicate(made);
        VEKRef<VEKPrtGraphicPrimitiveElt>::Adopt(made);
    });
    std::printf("| `%s` | %zu | %ld | %ld | %ld |\n", Element::ClassName(), sizeof(Element), construct, copy,
                duplicate);
}

template <class... Elements>
void ReportAll(vekprt::ClassList<Elements...>) {
    std::printf("| class | bytes | construct | copy | `Duplicate` |\n|---|---|---|---|---|\n");
    (Report<Elements>(), ...);
}

} // namespace

// All other forms of new and delete call these.
void* operator new(std::size_t iSize) {
    ++g_allocations;
    void* const block = std::malloc(iSize);
    if (!block) throw std::bad_alloc();
    return block;
}
void operator delete(void* iBlock) noexcept { std::free(iBlock); }
void operator delete(void* iBlock, std::size_t) noexcept { std::free(iBlock); }

int main(int argc, char** argv) {
    if (argc > 1) {
        std::puts("usage: footprint\nPrints, for each element class, its size in bytes and the allocations "
                  "of each operation.");
        return std::strcmp(argv[1], "--help") == 0 ? 0 : 2;
    }
    ReportAll(vekprt::ElementClasses());
    constexpr int lines = 10000;
    const auto group = Make<VEKPrtGroupElt>();
    const long total = AllocationsOf([&] {
        for (int i = 0; i < lines; ++i)
            group->AddChild(Make<VEKPrtLineElt>(VEKMathPoint2D(0, 0), VEKMathPoint2D(1, 1)).Get());
    });
    std::printf(
        "\n%d lines built and added to a group: %ld allocations, %d for the lines, %ld for the list\n", lines,
        total, lines, total - lines);
    return 0;
}
