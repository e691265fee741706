#include "Clip.h"

#include <algorithm>
#include <cmath>

namespace {

Point Between(const Point& iFrom, const Point& iTo, double iShare) {
    return {iFrom.x + (iTo.x - iFrom.x) * iShare, iFrom.y + (iTo.y - iFrom.y) * iShare};
}

/// One pass of Sutherland and Hodgman: keeps the side of the line x = \p iLimit (or y) where
/// \p iSign * (coordinate - limit) is not negative.
Path ClipHalfPlane(const Path& iRing, double Point::*iCoordinate, double iLimit, double iSign) {
    Path kept;
    kept.reserve(iRing.size() + 4);
    for (std::size_t i = 0; i < iRing.size(); ++i) {
        const Point& from = iRing[i];
        const Point& to = iRing[(i + 1) % iRing.size()];
        const double fromSide = iSign * (from.*iCoordinate - iLimit);
        const double toSide = iSign * (to.*iCoordinate - iLimit);
        if (fromSide >= 0.0) kept.push_back(from);
        if ((fromSide >= 0.0) == (toSide >= 0.0)) continue;
        Point crossing = Between(from, to, fromSide / (fromSide - toSide));
        crossing.*iCoordinate = iLimit;
        kept.push_back(crossing);
    }
    return kept;
}

/// Liang and Barsky: the shares of the segment at which it enters and leaves; false when it is outside.
bool ClipSegment(const Point& iFrom, const Point& iTo, const Box& iBox, double& oEnter, double& oLeave) {
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

Path ClipRing(const Path& iRing, const Box& iBox) {
    Path ring = ClipHalfPlane(iRing, &Point::x, iBox.minX, 1.0);
    ring = ClipHalfPlane(ring, &Point::x, iBox.maxX, -1.0);
    ring = ClipHalfPlane(ring, &Point::y, iBox.minY, 1.0);
    ring = ClipHalfPlane(ring, &Point::y, iBox.maxY, -1.0);
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

Path Densified(const Path& iPath, double iStep, bool iClosed) {
    Path dense;
    dense.reserve(iPath.size());
    for (std::size_t i = 0; i < iPath.size(); ++i) {
        dense.push_back(iPath[i]);
        if (!iClosed && i + 1 == iPath.size()) break;
        const Point& to = iPath[(i + 1) % iPath.size()];
        const double length = std::max(std::abs(to.x - iPath[i].x), std::abs(to.y - iPath[i].y));
        const int parts = static_cast<int>(std::ceil(length / iStep));
        for (int part = 1; part < parts; ++part)
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
