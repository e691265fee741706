#include "MapView.h"

#include <cmath>

namespace {

constexpr double fullTurn = 360.0;
constexpr double step = 1.0;      // degrees: straight lines of longitude and latitude bend on the page
constexpr double fineness = 0.03; // millimetres: finer than a plotter draws

Path Shifted(const Path& iPath, double iTurn) {
    Path path = iPath;
    for (Position& position : path)
        position.x += iTurn;
    return path;
}

// Makes each longitude follow the one before by the short way.
void Unroll(Path& ioPath) {
    for (std::size_t i = 1; i < ioPath.size(); ++i)
        ioPath[i].x -= fullTurn * std::round((ioPath[i].x - ioPath[i - 1].x) / fullTurn);
}

// Whether an edge is there only because the data was cut open at the antimeridian or a pole.
bool IsSeam(const Position& iFrom, const Position& iTo) {
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

MapView::MapView(const Projection& iProjection, double iScale, const Box& iFrame, Allowance& ioAllowance)
    : _projection(iProjection), _allowance(ioAllowance), _millimetres(1e6 / iScale), _frame(iFrame) {
    _window = iProjection.WindowFor(std::hypot(iFrame.Width(), iFrame.Height()) / 2.0 / _millimetres);
    const Box& rim = iProjection.IsWorld() ? _window : _frame;
    _outline = {{rim.minX, rim.minY}, {rim.maxX, rim.minY}, {rim.maxX, rim.maxY}, {rim.minX, rim.maxY}};
    if (iProjection.IsWorld()) _outline = ToPage(_outline, true);
}

Path MapView::ToPage(const Path& iPath, bool iClosed) const {
    const Position centre = _frame.Centre();
    Path path = Densified(iPath, step, iClosed, _allowance);
    for (Position& position : path) {
        position = _projection.Forward(position);
        position = {centre.x + position.x * _millimetres, centre.y + position.y * _millimetres};
    }
    return path;
}

std::vector<Path> MapView::InWindow(const Path& iPath) const {
    const Box bounds = BoundsOf(iPath);
    const double offset = fullTurn * std::round((bounds.Centre().x - _projection.Centre().x) / fullTurn);
    std::vector<Path> copies;
    for (const double turn : {-offset - fullTurn, -offset, -offset + fullTurn})
        if (_window.Overlaps({bounds.minX + turn, bounds.minY, bounds.maxX + turn, bounds.maxY}))
            copies.push_back(Shifted(iPath, turn));
    return copies;
}

std::vector<Path> MapView::Rings(const Path& iRing) const {
    if (iRing.empty()) return {};
    Path ring = iRing;
    Unroll(ring);
    const double turns = fullTurn * std::round((ring.back().x - ring.front().x) / fullTurn);
    if (turns != 0.0) {
        // Round a pole: one turn on, the ring is back at its first position, and is closed by way of the pole
        // on its side of the equator.
        const Position first = ring.front();
        const double pole = BoundsOf(ring).Centre().y < 0.0 ? -90.0 : 90.0;
        ring.push_back({first.x + turns, first.y});
        ring.push_back({first.x + turns, pole});
        ring.push_back({first.x, pole});
    }
    std::vector<Path> shown;
    for (const Path& copy : InWindow(ring)) {
        Path page = Thinned(ClipRing(ToPage(ClipRing(copy, _window), true), _frame), fineness);
        if (page.size() >= 3) shown.push_back(std::move(page));
    }
    return shown;
}

std::vector<Path> MapView::Lines(const Path& iLine) const {
    std::vector<Path> shown;
    for (Path& line : WithoutSeams(iLine)) {
        Unroll(line);
        for (const Path& copy : InWindow(line))
            AddLine(copy, shown);
    }
    return shown;
}

void MapView::AddLine(const Path& iLine, std::vector<Path>& ioShown) const {
    for (const Path& cut : ClipLine(iLine, _window)) {
        for (const Path& piece : ClipLine(ToPage(cut, false), _frame)) {
            const Box extent = BoundsOf(piece);
            if (extent.Width() >= fineness || extent.Height() >= fineness)
                ioShown.push_back(Thinned(piece, fineness));
        }
    }
}
