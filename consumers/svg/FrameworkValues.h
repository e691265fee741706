// The values of the framework's enumerations: all hosts agree on them, but not on the enumerators' names.
#ifndef FrameworkValues_H
#define FrameworkValues_H

namespace vekprt::svg {

constexpr int lineTypeDashed = 1, lineTypeDotted = 2, lineTypeDashDot = 3, lineTypeDashDotDot = 4,
              lineTypeLongDash = 5, lineTypeFineDash = 6;
constexpr int lineStyleFixed = 9;
constexpr int lineCapButt = 10, lineCapRound = 11, lineCapSquare = 12;
constexpr int lineJoinMitre = 13, lineJoinRound = 14, lineJoinBevel = 15;

// Light, regular, medium, bold, black.
constexpr int textWeightFirst = 24, textWeightLast = 28;
// On the baseline, in the middle, at the top; of each the left, the centre, the right.
constexpr int textAnchorFirst = 29, textAnchorLast = 37;

constexpr int markerCross = 1, markerAsterisk = 2, markerCircle = 3, markerDisc = 4, markerSquare = 5,
              markerDiamond = 6, markerTriangle = 7;

constexpr int transformMatrix = 0, transformTranslation = 1, transformRotation = 2, transformScaleX = 3,
              transformScaleY = 4, transformSkewX = 5, transformSkewY = 6;

} // namespace vekprt::svg

#endif
