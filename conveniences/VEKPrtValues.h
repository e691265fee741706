/// \file
/// The values of the host framework's enumerations, and names to print them by.
#ifndef VEKPrtValues_H
#define VEKPrtValues_H

#include <initializer_list>

#include "VEKPrintLineAttribute.h"
#include "VEKPrintMarkerAttribute.h"
#include "VEKPrintTextAttribute.h"
#include "VEKPrintTransformType.h"
#include "VEKPrtFillAttributes.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtTextAttributes.h"

namespace vekprt {

// Hosts agree on these numbers, but not on the names of the enumerators, so code that is to be compiled with
// any framework uses the constants below.

constexpr auto transformMatrix = static_cast<VEKPrintTransformType>(0);
constexpr auto transformTranslation = static_cast<VEKPrintTransformType>(1);
constexpr auto transformRotation = static_cast<VEKPrintTransformType>(2);
constexpr auto transformScaleX = static_cast<VEKPrintTransformType>(3);
constexpr auto transformScaleY = static_cast<VEKPrintTransformType>(4);
constexpr auto transformSkewX = static_cast<VEKPrintTransformType>(5);
constexpr auto transformSkewY = static_cast<VEKPrintTransformType>(6);

constexpr auto lineTypeSolid = static_cast<VEKPrintLineAttribute>(0);
constexpr auto lineTypeDashed = static_cast<VEKPrintLineAttribute>(1);
constexpr auto lineTypeDotted = static_cast<VEKPrintLineAttribute>(2);
constexpr auto lineTypeDashDot = static_cast<VEKPrintLineAttribute>(3);
constexpr auto lineTypeDashDotDot = static_cast<VEKPrintLineAttribute>(4);
constexpr auto lineTypeLongDash = static_cast<VEKPrintLineAttribute>(5);
constexpr auto lineTypeFineDash = static_cast<VEKPrintLineAttribute>(6);
constexpr auto lineTypePattern = static_cast<VEKPrintLineAttribute>(7);
constexpr auto lineStyleScaled = static_cast<VEKPrintLineAttribute>(8);
constexpr auto lineStyleFixed = static_cast<VEKPrintLineAttribute>(9);
constexpr auto lineCapButt = static_cast<VEKPrintLineAttribute>(10);
constexpr auto lineCapRound = static_cast<VEKPrintLineAttribute>(11);
constexpr auto lineCapSquare = static_cast<VEKPrintLineAttribute>(12);
constexpr auto lineJoinMitre = static_cast<VEKPrintLineAttribute>(13);
constexpr auto lineJoinRound = static_cast<VEKPrintLineAttribute>(14);
constexpr auto lineJoinBevel = static_cast<VEKPrintLineAttribute>(15);

constexpr auto textWeightLight = static_cast<VEKPrintTextAttribute>(24);
constexpr auto textWeightRegular = static_cast<VEKPrintTextAttribute>(25);
constexpr auto textWeightMedium = static_cast<VEKPrintTextAttribute>(26);
constexpr auto textWeightBold = static_cast<VEKPrintTextAttribute>(27);
constexpr auto textWeightBlack = static_cast<VEKPrintTextAttribute>(28);
constexpr auto textAnchorBaselineLeft = static_cast<VEKPrintTextAttribute>(29);
constexpr auto textAnchorBaselineCentre = static_cast<VEKPrintTextAttribute>(30);
constexpr auto textAnchorBaselineRight = static_cast<VEKPrintTextAttribute>(31);
constexpr auto textAnchorMiddleLeft = static_cast<VEKPrintTextAttribute>(32);
constexpr auto textAnchorMiddleCentre = static_cast<VEKPrintTextAttribute>(33);
constexpr auto textAnchorMiddleRight = static_cast<VEKPrintTextAttribute>(34);
constexpr auto textAnchorTopLeft = static_cast<VEKPrintTextAttribute>(35);
constexpr auto textAnchorTopCentre = static_cast<VEKPrintTextAttribute>(36);
constexpr auto textAnchorTopRight = static_cast<VEKPrintTextAttribute>(37);

constexpr auto markerPlus = static_cast<VEKPrintMarkerAttribute>(0);
constexpr auto markerCross = static_cast<VEKPrintMarkerAttribute>(1);
constexpr auto markerAsterisk = static_cast<VEKPrintMarkerAttribute>(2);
constexpr auto markerCircle = static_cast<VEKPrintMarkerAttribute>(3);
constexpr auto markerDisc = static_cast<VEKPrintMarkerAttribute>(4);
constexpr auto markerSquare = static_cast<VEKPrintMarkerAttribute>(5);
constexpr auto markerDiamond = static_cast<VEKPrintMarkerAttribute>(6);
constexpr auto markerTriangle = static_cast<VEKPrintMarkerAttribute>(7);

namespace detail {

inline const char* NameAt(int iIndex, std::initializer_list<const char*> iNames) {
    return iIndex >= 0 && iIndex < static_cast<int>(iNames.size()) ? iNames.begin()[iIndex] : nullptr;
}

} // namespace detail

/// \name Names of values
/// @{

/// The name by which Dump shows the value; null for a value that has none.
inline const char* NameOf(VEKPrintTransformType iValue) {
    return detail::NameAt(static_cast<int>(iValue) - static_cast<int>(transformMatrix),
                          {"matrix", "translation", "rotation", "scale-x", "scale-y", "skew-x", "skew-y"});
}
inline const char* NameOf(VEKPrintLineAttribute iValue) {
    return detail::NameAt(static_cast<int>(iValue) - static_cast<int>(lineTypeSolid),
                          {"solid", "dashed", "dotted", "dash-dot", "dash-dot-dot", "long-dash", "fine-dash",
                           "pattern", "scaled", "fixed", "butt", "round", "square", "mitre", "round",
                           "bevel"});
}
inline const char* NameOf(VEKPrintTextAttribute iValue) {
    return detail::NameAt(static_cast<int>(iValue) - static_cast<int>(textWeightLight),
                          {"light", "regular", "medium", "bold", "black", "baseline-left", "baseline-centre",
                           "baseline-right", "middle-left", "middle-centre", "middle-right", "top-left",
                           "top-centre", "top-right"});
}
inline const char* NameOf(VEKPrintMarkerAttribute iValue) {
    return detail::NameAt(static_cast<int>(iValue) - static_cast<int>(markerPlus),
                          {"plus", "cross", "asterisk", "circle", "disc", "square", "diamond", "triangle"});
}
inline const char* NameOf(VEKPrtDrawStyle iValue) {
    return detail::NameAt(iValue, {"interior", "outline", "both"});
}
inline const char* NameOf(VEKPrtFillStyle iValue) {
    return detail::NameAt(iValue, {"solid", "pattern", "none"});
}
inline const char* NameOf(VEKPrtFillRule iValue) { return detail::NameAt(iValue, {"non-zero", "even-odd"}); }
inline const char* NameOf(VEKPrtTextWritingMode iValue) {
    return detail::NameAt(iValue, {"horizontal", "vertical"});
}
inline const char* NameOf(VEKPrtImageUnits iValue) {
    return detail::NameAt(iValue, {"pixel", "point", "pica", "inch", "millimetre", "centimetre", "metre"});
}
/// @}

} // namespace vekprt

#endif
