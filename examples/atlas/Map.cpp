#include "Map.h"

#include <cmath>
#include <stdexcept>

namespace {

constexpr double fullTurn = 360.0;
constexpr double step = 1.0;            // degrees between the positions of a curve
constexpr double resolution = 0.03;     // millimetres: finer than a plotter draws
constexpr double seamTolerance = 0.002; // degrees: half the grid of quantised data

Position Between(const Position& iFrom, const Position& iTo, double iShare) {
    return {iFrom.x + (iTo.x - iFrom.x) * iShare, iFrom.y + (iTo.y - iFrom.y) * iShare};
}

// One pass of Sutherland and Hodgman: keeps the side of the line x = iLimit (or y) where
// iSign * (coordinate - limit) is not negative.
Path ClipHalfPlane(const Path& iRing, double Position::*iCoordinate, double iLimit, double iSign) {
    Path kept;
    for (std::size_t i = 0; i < iRing.size(); ++i) {
        const Position &from = iRing[i], &to = iRing[(i + 1) % iRing.size()];
        const double fromSide = iSign * (from.*iCoordinate - iLimit);
        const double toSide = iSign * (to.*iCoordinate - iLimit);
        if (fromSide >= 0.0) kept.push_back(from);
        if ((fromSide >= 0.0) == (toSide >= 0.0)) continue;
        kept.push_back(Between(from, to, fromSide / (fromSide - toSide)));
        kept.back().*iCoordinate = iLimit;
    }
    return kept;
}

// The part of the ring within the box.  Disconnected parts stay joined by edges along the box, which enclose
// no area.
Path ClipRing(const Path& iRing, const Box& iBox) {
    const Path ring =
        ClipHalfPlane(ClipHalfPlane(iRing, &Position::x, iBox.minX, 1.0), &Position::x, iBox.maxX, -1.0);
    return ClipHalfPlane(ClipHalfPlane(ring, &Position::y, iBox.minY, 1.0), &Position::y, iBox.maxY, -1.0);
}

// Liang and Barsky: the shares of the segment at which it enters and leaves; false when it is outside.
bool ClipSegment(const Position& iFrom, const Position& iTo, const Box& iBox, double& oIn, double& oOut) {
    const double dx = iTo.x - iFrom.x, dy = iTo.y - iFrom.y;
    const double steps[] = {-dx, dx, -dy, dy};
    const double rooms[] = {iFrom.x - iBox.minX, iBox.maxX - iFrom.x, iFrom.y - iBox.minY,
                            iBox.maxY - iFrom.y};
    oIn = 0.0;
    oOut = 1.0;
    for (int side = 0; side < 4; ++side) {
        if (steps[side] == 0.0 && rooms[side] < 0.0) return false;
        if (steps[side] < 0.0) oIn = std::max(oIn, rooms[side] / steps[side]);
        if (steps[side] > 0.0) oOut = std::min(oOut, rooms[side] / steps[side]);
    }
    return oIn < oOut;
}

// Drops positions closer than the resolution to the one kept before; the first and the last stay.
Path Thinned(const Path& iPath) {
    Path thin;
    for (const Position& position : iPath)
        if (thin.empty() || &position == &iPath.back() ||
            std::hypot(position.x - thin.back().x, position.y - thin.back().y) >= resolution)
            thin.push_back(position);
    return thin;
}

// Whether an edge exists only because the data was split at the antimeridian or a pole.
bool IsSeam(const Position& iFrom, const Position& iTo) {
    const auto onMeridian = [](const Position& i) { return std::abs(std::abs(i.x) - 180.0) < seamTolerance; };
    const auto atPole = [](const Position& i) { return std::abs(i.y) > 90.0 - seamTolerance; };
    return (onMeridian(iFrom) && onMeridian(iTo)) || (atPole(iFrom) && atPole(iTo));
}

} // namespace

Path Unrolled(Path iPath) {
    for (std::size_t i = 1; i < iPath.size(); ++i)
        iPath[i].x -= fullTurn * std::round((iPath[i].x - iPath[i - 1].x) / fullTurn);
    return iPath;
}

double AreaOf(const Path& iRing) {
    double twice = 0.0;
    for (std::size_t i = 0; i < iRing.size(); ++i) {
        const Position& to = iRing[(i + 1) % iRing.size()];
        twice += iRing[i].x * to.y - to.x * iRing[i].y;
    }
    return std::abs(twice) / 2.0;
}

std::vector<Path> ClipLine(const Path& iLine, const Box& iBox) {
    std::vector<Path> pieces;
    bool isOpen = false;
    for (std::size_t i = 0; i + 1 < iLine.size(); ++i) {
        double enter = 0.0, leave = 0.0;
        const bool isShown = ClipSegment(iLine[i], iLine[i + 1], iBox, enter, leave);
        if (isShown && (!isOpen || enter > 0.0)) pieces.push_back({Between(iLine[i], iLine[i + 1], enter)});
        if (isShown) pieces.back().push_back(Between(iLine[i], iLine[i + 1], leave));
        isOpen = isShown && leave == 1.0;
    }
    return pieces;
}

void Allowance::Spend(std::size_t iPositions) {
    if (iPositions > positions) throw std::runtime_error("the outlines have too many positions");
    positions -= iPositions;
}

Position Projection::Forward(const Position& iLonLat) const {
    const double longitude = (iLonLat.x - centre.x) * degree, latitude = iLonLat.y * degree;
    if (isWorld)
        return {earthRadius * longitude * std::sqrt(1.0 - 3.0 * std::pow(iLonLat.y / 180.0, 2)),
                earthRadius * latitude};
    const double sine = std::sin(latitude), cosine = std::cos(latitude);
    const double north = std::sin(centre.y * degree), level = std::cos(centre.y * degree);
    const double cosineDistance = north * sine + level * cosine * std::cos(longitude);
    // The antipode is a whole circle on the map; the bound yields a finite point for it.
    const double scale = earthRadius * std::sqrt(2.0 / std::max(1.0 + cosineDistance, 1e-9));
    return {scale * cosine * std::sin(longitude),
            scale * (level * sine - north * cosine * std::cos(longitude))};
}

Path Projection::Forward(const Path& iPath, bool iIsClosed, Allowance& ioAllowance) const {
    Path projected;
    for (std::size_t i = 0; i < iPath.size(); ++i) {
        const bool isLast = !iIsClosed && i + 1 == iPath.size();
        const Position &from = iPath[i], &to = isLast ? from : iPath[(i + 1) % iPath.size()];
        const double length = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
        const int parts = std::max(1, static_cast<int>(std::ceil(length / step)));
        ioAllowance.Spend(static_cast<std::size_t>(parts));
        for (int part = 0; part < parts; ++part)
            projected.push_back(Forward(Between(from, to, static_cast<double>(part) / parts)));
    }
    return projected;
}

Box Projection::WindowFor(double iDistance) const {
    const double angle = 2.0 * std::asin(std::min(iDistance / earthRadius / 2.0, 1.0)) / degree;
    const double south = centre.y - angle, north = centre.y + angle;
    if (isWorld) return {centre.x - 180.0, -90.0, centre.x + 180.0, 90.0};
    double half = 180.0;
    if (south > -90.0 && north < 90.0)
        half = std::asin(std::sin(angle * degree) / std::cos(centre.y * degree)) / degree;
    return {centre.x - half, std::max(south, -90.0), centre.x + half, std::min(north, 90.0)};
}

MapView::MapView(const Projection& iProjection, const Position& iMiddle, double iScale, const Box& iFrame,
                 Allowance& ioAllowance)
    : projection(iProjection), frame(iFrame), millimetres(1e6 / iScale),
      _allowance(ioAllowance), _origin{iFrame.Centre().x - iMiddle.x * millimetres,
                                       iFrame.Centre().y - iMiddle.y * millimetres} {
    const double reach = std::hypot(frame.Width(), frame.Height()) / 2.0 / millimetres;
    window = projection.WindowFor(reach + std::hypot(iMiddle.x, iMiddle.y));
    outline = projection.isWorld ? ToPage(window.Corners(), false) : frame.Corners();
}

Path MapView::ToPage(const Path& iPath, bool iIsClosed) const {
    Path path = projection.Forward(iPath, iIsClosed, _allowance);
    for (Position& position : path)
        position = {_origin.x + position.x * millimetres, _origin.y + position.y * millimetres};
    return path;
}

std::vector<Path> MapView::Copies(const Path& iPath) const {
    const double turn = fullTurn * std::round((projection.centre.x - iPath.front().x) / fullTurn);
    std::vector<Path> copies(3, iPath);
    for (std::size_t copy = 0; copy < 3; ++copy)
        for (Position& position : copies[copy])
            position.x += turn + fullTurn * (static_cast<double>(copy) - 1.0);
    return copies;
}

std::vector<Path> MapView::Rings(const Path& iRing) const {
    Path ring = Unrolled(iRing);
    const Position first = ring.front(), last = ring.back();
    const double turns = fullTurn * std::round((last.x - first.x) / fullTurn);
    if (turns != 0.0) {
        // Around a pole: one turn later the ring is back at its first position; it is closed by way of the
        // pole on its side of the equator.
        const double pole = first.y < 0.0 ? -90.0 : 90.0;
        ring.insert(ring.end(), {{first.x + turns, first.y}, {first.x + turns, pole}, {first.x, pole}});
    }
    std::vector<Path> shown;
    for (const Path& copy : Copies(ring)) {
        shown.push_back(Thinned(ClipRing(ToPage(ClipRing(copy, window), true), frame)));
        if (shown.back().size() < 3) shown.pop_back();
    }
    return shown;
}

std::vector<Path> MapView::Lines(const Path& iLine) const {
    std::vector<Path> pieces, shown;
    for (std::size_t i = 0; i + 1 < iLine.size(); ++i) {
        if (IsSeam(iLine[i], iLine[i + 1])) continue;
        if (i == 0 || IsSeam(iLine[i - 1], iLine[i])) pieces.push_back({iLine[i]});
        pieces.back().push_back(iLine[i + 1]);
    }
    for (const Path& piece : pieces)
        for (const Path& copy : Copies(Unrolled(piece)))
            for (const Path& cut : ClipLine(copy, window))
                for (const Path& part : ClipLine(ToPage(cut, false), frame))
                    shown.push_back(Thinned(part));
    return shown;
}
