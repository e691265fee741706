#include "Labels.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <queue>

namespace {

/// From \p iPoint to the nearest edge; negative outside of the rings.
double SignedDistance(const std::vector<Path>& iRings, const Point& iPoint) {
    double square = std::numeric_limits<double>::max();
    for (const Path& ring : iRings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Point& a = ring[i];
            const Point& b = ring[(i + 1) % ring.size()];
            const double dx = b.x - a.x;
            const double dy = b.y - a.y;
            const double length = dx * dx + dy * dy;
            const double along = (iPoint.x - a.x) * dx + (iPoint.y - a.y) * dy;
            const double share = length > 0.0 ? std::clamp(along / length, 0.0, 1.0) : 0.0;
            const double offX = iPoint.x - a.x - share * dx;
            const double offY = iPoint.y - a.y - share * dy;
            square = std::min(square, offX * offX + offY * offY);
        }
    }
    return IsInside(iRings, iPoint) ? std::sqrt(square) : -std::sqrt(square);
}

struct Cell {
    Cell(const std::vector<Path>& iRings, const Point& iCentre, double iHalf)
        : centre(iCentre), half(iHalf), distance(SignedDistance(iRings, iCentre)) {}

    /// No point of the cell is farther inside than this.
    double Bound() const { return distance + half * std::sqrt(2.0); }
    bool operator<(const Cell& iOther) const { return Bound() < iOther.Bound(); }

    Point centre;
    double half;
    double distance;
};

/// The point farthest inside: quarters the most promising cell until none promises more.
Cell VisualCentre(const std::vector<Path>& iRings, const Box& iBounds) {
    const double size = std::max(iBounds.Width(), iBounds.Height());
    const double precision = size / 200.0;
    const double half = std::max(std::min(iBounds.Width(), iBounds.Height()), size / 16.0) / 2.0;
    Cell best(iRings, iBounds.Centre(), 0.0);
    std::priority_queue<Cell> cells;
    for (double x = iBounds.minX; x < iBounds.maxX; x += 2.0 * half) {
        for (double y = iBounds.minY; y < iBounds.maxY; y += 2.0 * half)
            cells.emplace(iRings, Point{x + half, y + half}, half);
    }
    while (!cells.empty()) {
        const Cell cell = cells.top();
        cells.pop();
        if (cell.distance > best.distance) best = cell;
        if (cell.Bound() - best.distance <= precision) break;
        const double quarter = cell.half / 2.0;
        for (const double x : {cell.centre.x - quarter, cell.centre.x + quarter}) {
            for (const double y : {cell.centre.y - quarter, cell.centre.y + quarter})
                cells.emplace(iRings, Point{x, y}, quarter);
        }
    }
    return best;
}

} // namespace

double TextWidth(const std::string& iText) {
    double width = 0.0;
    for (const char c : iText) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 && byte < 0xC0) continue; // not the first byte of a character
        if (std::strchr(" .,'ijlIft-", c))
            width += 0.36;
        else if (std::strchr("mwMW", c))
            width += 0.98;
        else if (byte >= 0xE0) // beyond the alphabets, where characters may fill a square
            width += 1.0;
        else if (c >= 'A' && c <= 'Z')
            width += 0.79;
        else
            width += 0.62;
    }
    return width;
}

bool LabelPlacer::Place(const std::string& iText, const std::vector<Path>& iRings, Label& oLabel) {
    const double aspect = TextWidth(iText);
    if (aspect <= 0.0 || iRings.empty()) return false;

    // A name is wide and low.  Pressed together to a square, it fits best where the area, pressed as much,
    // has the most room around a point.
    Box extent = BoundsOf(iRings[0]);
    std::vector<Path> pressed = iRings;
    for (Path& ring : pressed) {
        const Box bounds = BoundsOf(ring);
        extent = {std::min(extent.minX, bounds.minX), std::min(extent.minY, bounds.minY),
                  std::max(extent.maxX, bounds.maxX), std::max(extent.maxY, bounds.maxY)};
        for (Point& point : ring)
            point.x /= aspect;
    }
    if (extent.Width() < aspect * _smallest || extent.Height() < _smallest) return false;
    const Cell room =
        VisualCentre(pressed, {extent.minX / aspect, extent.minY, extent.maxX / aspect, extent.maxY});

    // A square with its corners on the circle of that room would fill it; names want some air around them.
    // The smallest ones may overhang the coast a little.
    constexpr double air = 0.8;
    constexpr double overhang = 0.72;
    const double fitting = room.distance * std::sqrt(2.0) * air;
    if (fitting < _smallest * overhang) return false;
    const Point centre{room.centre.x * aspect, room.centre.y};
    // A smaller name may find room where the rim of the map or another name is in the way.
    constexpr double shrinkage = 0.9;
    for (double size = std::clamp(fitting, _smallest, _largest); size >= _smallest; size *= shrinkage) {
        const double halfWidth = aspect * size / 2.0;
        const double halfHeight = size / 2.0;
        const Box box{centre.x - halfWidth, centre.y - halfHeight, centre.x + halfWidth,
                      centre.y + halfHeight};
        const Box guarded = box.Grown(size * 0.15);
        const bool free = std::none_of(_taken.begin(), _taken.end(),
                                       [&guarded](const Box& iTaken) { return iTaken.Overlaps(guarded); });
        if (!free || !_view.Covers(box.Grown(size * 0.35))) continue;
        _taken.push_back(guarded);
        // The middle of the capitals is about so far above the baseline.
        oLabel = {iText, {centre.x, centre.y - 0.36 * size}, size};
        return true;
    }
    return false;
}
