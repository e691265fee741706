#include "PathText.h"

#include <algorithm>
#include <cmath>

namespace vekprt::svg {

// Differences of rounded coordinates, which add up to rounded coordinates.  Readers add in single precision:
// periodic absolute segments stop the error from accumulating.
std::string PathText(const drawing::Path& iPath, const Grid& iGrid) {
    constexpr int maxRelativeSegments = 64;
    double extent = 0;
    for (const VEKMathPoint2D& point : iPath.Points())
        extent = std::max({extent, std::fabs(point.GetX()), std::fabs(point.GetY())});
    const bool isOnGrid = iGrid.Holds(2.0 * extent);

    std::string text;
    text.reserve(iPath.Points().size() * 16);
    std::int64_t from[2] = {0, 0}, to[2] = {0, 0};
    char last = 0;
    int differences = 0;
    const VEKMathPoint2D* point = iPath.Points().data();
    for (const char command : iPath.Commands()) {
        const bool isRelative = isOnGrid && command != 'M' && differences < maxRelativeSegments;
        differences = isRelative ? differences + 1 : 0;
        const char letter = isRelative && command != 'Z' ? static_cast<char>(command - 'A' + 'a') : command;
        text += letter != last || command == 'M' ? letter : ' ';
        last = letter;
        for (int i = 0; i < drawing::Path::PointCount(command); ++i, ++point) {
            char pair[2 * Grid::maxText + 2];
            char* end = pair;
            if (i > 0) *end++ = ' ';
            for (const int axis : {0, 1}) {
                const double value = axis == 0 ? point->GetX() : point->GetY();
                if (axis > 0) *end++ = ',';
                if (isOnGrid) {
                    to[axis] = iGrid.Units(value);
                    end = iGrid.WriteUnits(end, isRelative ? to[axis] - from[axis] : to[axis]);
                } else {
                    end = iGrid.Write(end, value);
                }
            }
            text.append(pair, end);
        }
        std::copy(to, to + 2, from);
    }
    return text;
}

} // namespace vekprt::svg
