#include "Reporter.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

#include "Path.h"
#include "VEKPrtGraphicPrimitiveElt.h"

namespace vekprt::drawing {

static bool IsInSinglePrecision(double iValue) { return std::fabs(iValue) <= FLT_MAX; }

void Reporter::Warn(const VEKPrtGraphicPrimitiveElt& iElement, const std::string& iProblem) const {
    if (!_warnings) return;
    VEKUnicodeString id;
    iElement.GetID(id);
    std::string line =
        std::string(iElement.IsA()) + (id.IsEmpty() ? "" : " ") + id.ToUtf8() + ": " + iProblem;
    std::replace_if(
        line.begin(), line.end(),
        [](char iCharacter) { return static_cast<unsigned char>(iCharacter) < ' '; }, ' ');
    *_warnings << _consumer << ": " << line << '\n';
}

bool Reporter::AreInRange(const VEKPrtGraphicPrimitiveElt& iElement,
                          std::initializer_list<double> iValues) const {
    const bool inRange = std::all_of(iValues.begin(), iValues.end(), IsInSinglePrecision);
    if (!inRange) WarnOutOfRange(iElement);
    return inRange;
}

bool Reporter::IsInRange(const VEKPrtGraphicPrimitiveElt& iElement, const Path& iPath) const {
    const bool inRange =
        std::all_of(iPath.Points().begin(), iPath.Points().end(), [](const VEKMathPoint2D& iPoint) {
            return IsInSinglePrecision(iPoint.GetX()) && IsInSinglePrecision(iPoint.GetY());
        });
    if (!inRange) WarnOutOfRange(iElement);
    return inRange;
}

bool Reporter::IsInRange(const VEKPrtGraphicPrimitiveElt& iElement, const Affine& iMap) const {
    return AreInRange(iElement, {iMap.a, iMap.b, iMap.c, iMap.d, iMap.e, iMap.f});
}

} // namespace vekprt::drawing
