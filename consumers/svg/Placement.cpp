#include "Placement.h"

#include <algorithm>
#include <cmath>

#include "Page.h"
#include "VEKPrtValues.h"

namespace vekprt::svg {

namespace {

// The floats of the records as such, whatever else in full.
std::string Angle(double iDegrees) {
    const auto single = static_cast<float>(iDegrees);
    return single == iDegrees ? Number(single) : Number(iDegrees);
}

std::string TextOf(const Elementary& iTransform, const Grid& iGrid) {
    const auto& [kind, map, x, y] = iTransform;
    switch (kind) {
    case transformTranslation: return "translate(" + iGrid(x) + "," + iGrid(y) + ")";
    case transformRotation: return "rotate(" + Angle(x) + ")";
    case transformSkewX: return "skewX(" + Angle(x) + ")";
    case transformSkewY: return "skewY(" + Angle(x) + ")";
    case transformMatrix: return Matrix(map);
    default: return "scale(" + Number(x) + "," + Number(y) + ")";
    }
}

} // namespace

// Entries negligible next to their group are rounding noise and become 0.
std::string Matrix(const Affine& iMap) {
    constexpr double noise = 1e-12;
    std::string text;
    const auto append = [&](std::initializer_list<double> iValues) {
        double largest = 0;
        for (const double value : iValues)
            largest = std::max(largest, std::fabs(value));
        for (const double value : iValues)
            text +=
                (text.empty() ? "matrix(" : " ") + Number(std::fabs(value) < largest * noise ? 0.0 : value);
    };
    append({iMap.a, iMap.b, iMap.c, iMap.d});
    append({iMap.e, iMap.f});
    return text + ")";
}

Placement::Placement(SvgPage& ioPage, const VEKPrtGraphicPrimitiveElt& iElement,
                     const std::vector<Elementary>& iTransforms)
    : _page(ioPage), _outer(ioPage.place),
      _isInRange(iTransforms.empty() || ioPage.reporter.IsInRange(iElement, Compose(iTransforms))) {
    if (_isInRange) Add(iTransforms);
}

Placement::~Placement() { _page.place = _outer; }

void Placement::Add(const std::vector<Elementary>& iTransforms) {
    Place& place = _page.place;
    for (const Elementary& transform : iTransforms) {
        if (transform.map == Affine()) continue;
        if (!_text.empty()) _text += ' ';
        _text += TextOf(transform, place.grid);
        place.map = place.map * transform.map;
        place.grid = Grid(_page.step / place.map.Stretch());
    }
}

} // namespace vekprt::svg
