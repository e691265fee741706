#include "Geometry.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

namespace {

Position Between(const Position& iFrom, const Position& iTo, double iShare) {
    return {iFrom.x + (iTo.x - iFrom.x) * iShare, iFrom.y + (iTo.y - iFrom.y) * iShare};
}

// One pass of Sutherland and Hodgman: keeps the side of the line x = iLimit (or y) where
// iSign * (coordinate - limit) is not negative.
Path ClipHalfPlane(const Path& iRing, double Position::*iCoordinate, double iLimit, double iSign) {
    Path kept;
    kept.reserve(iRing.size() + 4);
    for (std::size_t i = 0; i < iRing.size(); ++i) {
        const Position& from = iRing[i];
        const Position& to = iRing[(i + 1) % iRing.size()];
        const double fromSide = iSign * (from.*iCoordinate - iLimit);
        const double toSide = iSign * (to.*iCoordinate - iLimit);
        if (fromSide >= 0.0) kept.push_back(from);
        if ((fromSide >= 0.0) == (toSide >= 0.0)) continue;
        Position crossing = Between(from, to, fromSide / (fromSide - toSide));
        crossing.*iCoordinate = iLimit;
        kept.push_back(crossing);
    }
    return kept;
}

// Liang and Barsky: the shares of the segment at which it enters and leaves; false when it is outside.
bool ClipSegment(const Position& iFrom, const Position& iTo, const Box& iBox, double& oEnter,
                 double& oLeave) {
    const double dx = iTo.x - iFrom.x;
    const double dy = iTo.y - iFrom.y;
    const double steps[] = {-dx, dx, -dy, dy};
    const double rooms[] = {iFrom.x - iBox.minX, iBox.maxX - iFrom.x, iFrom.y - iBox.minY,
                            iBox.maxY - iFrom.y};
    oEnter = 0.0;
    oLeave = 1.0;
    for (int side = 0; side < 4; ++side) {
        if (steps[side] == 0.0) {
            if (rooms[side] < 0.0) return false;
            continue;
        }
        const double share = rooms[side] / steps[side];
        if (steps[side] < 0.0)
            oEnter = std::max(oEnter, share);
        else
            oLeave = std::min(oLeave, share);
    }
    return oEnter < oLeave;
}

} // namespace

bool Box::Overlaps(const Box& iOther) const {
    return minX <= iOther.maxX && iOther.minX <= maxX && minY <= iOther.maxY && iOther.minY <= maxY;
}

void Box::Add(const Position& iPosition) { Add(Box{iPosition.x, iPosition.y, iPosition.x, iPosition.y}); }

void Box::Add(const Box& iOther) {
    minX = std::min(minX, iOther.minX);
    minY = std::min(minY, iOther.minY);
    maxX = std::max(maxX, iOther.maxX);
    maxY = std::max(maxY, iOther.maxY);
}

Box BoundsOf(const Path& iPath) {
    Box box;
    for (const Position& position : iPath)
        box.Add(position);
    return box;
}

Box BoundsOf(const std::vector<Path>& iPaths) {
    Box box;
    for (const Path& path : iPaths)
        box.Add(BoundsOf(path));
    return box;
}

double AreaOf(const Path& iRing) {
    double twice = 0.0;
    for (std::size_t i = 0; i < iRing.size(); ++i) {
        const Position& to = iRing[(i + 1) % iRing.size()];
        twice += iRing[i].x * to.y - to.x * iRing[i].y;
    }
    return std::abs(twice) / 2.0;
}

Path ClipRing(const Path& iRing, const Box& iBox) {
    Path ring = ClipHalfPlane(iRing, &Position::x, iBox.minX, 1.0);
    ring = ClipHalfPlane(ring, &Position::x, iBox.maxX, -1.0);
    ring = ClipHalfPlane(ring, &Position::y, iBox.minY, 1.0);
    ring = ClipHalfPlane(ring, &Position::y, iBox.maxY, -1.0);
    if (ring.size() < 3) ring.clear();
    return ring;
}

std::vector<Path> ClipLine(const Path& iLine, const Box& iBox) {
    std::vector<Path> pieces;
    bool open = false;
    for (std::size_t i = 0; i + 1 < iLine.size(); ++i) {
        double enter = 0.0;
        double leave = 1.0;
        if (!ClipSegment(iLine[i], iLine[i + 1], iBox, enter, leave)) {
            open = false;
            continue;
        }
        if (!open || enter > 0.0) pieces.push_back({Between(iLine[i], iLine[i + 1], enter)});
        pieces.back().push_back(leave < 1.0 ? Between(iLine[i], iLine[i + 1], leave) : iLine[i + 1]);
        open = leave == 1.0;
    }
    return pieces;
}

void Allowance::Spend(std::size_t iPositions) {
    if (iPositions > _left)
        throw std::runtime_error("the outlines have too many positions, more than " + std::to_string(_most));
    _left -= iPositions;
}

Path Densified(const Path& iPath, double iStep, bool iClosed, Allowance& ioAllowance) {
    Path dense;
    for (std::size_t i = 0; i < iPath.size(); ++i) {
        const bool last = !iClosed && i + 1 == iPath.size();
        const Position& to = last ? iPath[i] : iPath[(i + 1) % iPath.size()];
        const double length = std::max(std::abs(to.x - iPath[i].x), std::abs(to.y - iPath[i].y));
        const int parts = std::max(1, static_cast<int>(std::ceil(length / iStep)));
        ioAllowance.Spend(static_cast<std::size_t>(parts));
        for (int part = 0; part < parts; ++part)
            dense.push_back(Between(iPath[i], to, static_cast<double>(part) / parts));
    }
    return dense;
}

Path Thinned(const Path& iPath, double iDistance) {
    Path thin;
    for (std::size_t i = 0; i < iPath.size(); ++i) {
        const bool end = i == 0 || i + 1 == iPath.size();
        if (end || std::hypot(iPath[i].x - thin.back().x, iPath[i].y - thin.back().y) >= iDistance)
            thin.push_back(iPath[i]);
    }
    return thin;
}
