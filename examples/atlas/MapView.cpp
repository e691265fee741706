#include "MapView.h"

#include <cmath>

#include "Clip.h"

namespace {

constexpr double kTurn = 360.0;
/// Degrees: straight lines of longitude and latitude bend on the page.
constexpr double kStep = 1.0;
/// Millimetres: finer than a plotter draws.
constexpr double kFineness = 0.03;

Path Shifted(const Path& iPath, double iTurn) {
    Path path = iPath;
    for (Point& point : path)
        point.x += iTurn;
    return path;
}

/// Makes each longitude follow the one before by the short way.
void Unroll(Path& ioPath) {
    for (std::size_t i = 1; i < ioPath.size(); ++i)
        ioPath[i].x -= kTurn * std::round((ioPath[i].x - ioPath[i - 1].x) / kTurn);
}

/// Whether an edge is there only because the data was cut open at the antimeridian or a pole.
bool IsSeam(const Point& iFrom, const Point& iTo) {
    constexpr double tolerance = 0.002; // half the grid of quantised data
    const bool meridian =
        std::abs(std::abs(iFrom.x) - 180.0) < tolerance && std::abs(std::abs(iTo.x) - 180.0) < tolerance;
    const bool pole = std::abs(iFrom.y) > 90.0 - tolerance && std::abs(iTo.y) > 90.0 - tolerance;
    return meridian || pole;
}

std::vector<Path> WithoutSeams(const Path& iLine) {
    std::vector<Path> pieces;
    bool open = false;
    for (std::size_t i = 0; i + 1 < iLine.size(); ++i) {
        if (IsSeam(iLine[i], iLine[i + 1])) {
            open = false;
            continue;
        }
        if (!open) pieces.push_back({iLine[i]});
        pieces.back().push_back(iLine[i + 1]);
        open = true;
    }
    return pieces;
}

} // namespace

MapView::MapView(const Projection& iProjection, double iScale, const Box& iFrame)
    : _projection(iProjection), _millimetres(1e6 / iScale), _frame(iFrame) {
    const Point centre = iFrame.Centre();
    _window = iProjection.WindowFor(
        {(iFrame.minX - centre.x) / _millimetres, (iFrame.minY - centre.y) / _millimetres,
         (iFrame.maxX - centre.x) / _millimetres, (iFrame.maxY - centre.y) / _millimetres});
    const Box& rim = iProjection.WindowIsOutline() ? _window : _frame;
    _outline = {{rim.minX, rim.minY}, {rim.maxX, rim.minY}, {rim.maxX, rim.maxY}, {rim.minX, rim.maxY}};
    if (iProjection.WindowIsOutline()) _outline = ToPage(Densified(_outline, kStep, true));
}

Point MapView::ToPage(const Point& iLonLat) const {
    const Point point = _projection.Forward(iLonLat);
    const Point centre = _frame.Centre();
    return {centre.x + point.x * _millimetres, centre.y + point.y * _millimetres};
}

Path MapView::ToPage(const Path& iPath) const {
    Path path;
    path.reserve(iPath.size());
    for (const Point& point : iPath)
        path.push_back(ToPage(point));
    return path;
}

void MapView::CentreOnWindow(Path& ioPath) const {
    const double offset = BoundsOf(ioPath).Centre().x - _projection.Centre().x;
    ioPath = Shifted(ioPath, -kTurn * std::round(offset / kTurn));
}

std::vector<Path> MapView::Rings(const Path& iRing) const {
    if (iRing.empty()) return {};
    Path ring = iRing;
    Unroll(ring);
    const double turns = kTurn * std::round((ring.back().x - ring.front().x) / kTurn);
    if (turns != 0.0) {
        // Round a pole: one turn on, the ring is back at its first point, and is closed by way of the pole
        // on its side of the equator.
        const Point first = ring.front();
        const double pole = BoundsOf(ring).Centre().y < 0.0 ? -90.0 : 90.0;
        ring.push_back({first.x + turns, first.y});
        ring.push_back({first.x + turns, pole});
        ring.push_back({first.x, pole});
    }
    CentreOnWindow(ring);

    std::vector<Path> shown;
    const Box bounds = BoundsOf(ring);
    for (const double turn : {-kTurn, 0.0, kTurn}) {
        if (!_window.Overlaps({bounds.minX + turn, bounds.minY, bounds.maxX + turn, bounds.maxY})) continue;
        const Path cut = ClipRing(Shifted(ring, turn), _window);
        Path page = Thinned(ClipRing(ToPage(Densified(cut, kStep, true)), _frame), kFineness);
        if (page.size() >= 3) shown.push_back(std::move(page));
    }
    return shown;
}

std::vector<Path> MapView::Lines(const Path& iLine) const {
    std::vector<Path> shown;
    for (Path& line : WithoutSeams(iLine)) {
        Unroll(line);
        CentreOnWindow(line);
        const Box bounds = BoundsOf(line);
        for (const double turn : {-kTurn, 0.0, kTurn}) {
            if (!_window.Overlaps({bounds.minX + turn, bounds.minY, bounds.maxX + turn, bounds.maxY}))
                continue;
            AddLine(Shifted(line, turn), shown);
        }
    }
    return shown;
}

std::vector<Path> MapView::GridLines(const Path& iLine) const {
    std::vector<Path> shown;
    AddLine(iLine, shown);
    return shown;
}

void MapView::AddLine(const Path& iLine, std::vector<Path>& ioShown) const {
    for (const Path& cut : ClipLine(iLine, _window)) {
        for (const Path& piece : ClipLine(ToPage(Densified(cut, kStep, false)), _frame)) {
            const Box extent = BoundsOf(piece);
            if (extent.Width() >= kFineness || extent.Height() >= kFineness)
                ioShown.push_back(Thinned(piece, kFineness));
        }
    }
}

bool MapView::Covers(const Box& iBox) const {
    const std::vector<Path> rim{_outline};
    return IsInside(rim, {iBox.minX, iBox.minY}) && IsInside(rim, {iBox.maxX, iBox.minY}) &&
           IsInside(rim, {iBox.minX, iBox.maxY}) && IsInside(rim, {iBox.maxX, iBox.maxY});
}
